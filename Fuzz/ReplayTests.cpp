// Every build replays what fuzzing starts from and what it has found.

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>

#include "Framework/XMLDataWrapper.h"
#include "Robustness/Sizes.h"
#include "Seeds.h"
#include "XmlMutator.h"

namespace Fuzz {

/// For the name of the test.
void PrintTo(const Target& target, std::ostream* out) {
    *out << target.name;
}

namespace {

class Replay : public testing::TestWithParam<Target> {
protected:
    static void Run(const std::string& name, const std::string& bytes) {
        std::cout << name << std::endl; // the last one is known even when it takes the program down
        try {
            GetParam().run(bytes);
        } catch (const Violation& violation) {
            ADD_FAILURE() << name << ": " << violation.what << "\n" << bytes;
        }
    }
};

TEST_P(Replay, SeedsAndKeptInputsHold) {
    const std::vector<Seed> seeds = SeedsOf(GetParam());
    ASSERT_GT(seeds.size(), 20U) << "the seeds are not all there";
    for (const Seed& seed : seeds) {
        Run(seed.name, seed.bytes);
    }
}

/// A short fuzzing without coverage, each change upon the one before: the same inputs every time, so that what passes
/// once passes always.
TEST_P(Replay, MutatedSeedsHold) {
    constexpr std::size_t longest = 6000;
    const unsigned rounds = Robustness::FullSizes() ? 30 : 1;
    unsigned number = 0;
    for (const Seed& seed : GetParam().takesDocuments ? SeedsOf(GetParam()) : std::vector<Seed>()) {
        std::string bytes = seed.bytes;
        for (unsigned round = 0; round < rounds && bytes.size() < longest; ++round) {
            const std::string changed = MutateDocument(bytes, ++number);
            if (changed == bytes) { // it does not load: nothing would ever change any more
                bytes = seed.bytes;
                continue;
            }
            bytes = changed;
            Run(seed.name + " mutated by " + std::to_string(number), bytes);
        }
    }
    EXPECT_EQ(number > 20, GetParam().takesDocuments) << number;
}

/// One document with everything in it that documents have: every beginning, and with any bit turned over.
TEST(BrokenDocuments, AreWholeOrRefused) {
    const std::vector<Seed> seeds = SeedsOf(Targets().front());
    const auto seed =
        std::find_if(seeds.begin(), seeds.end(), [](const Seed& each) { return each.name == "constructs.xml"; });
    ASSERT_NE(seed, seeds.end());
    const std::string& whole = seed->bytes;
    std::vector<std::string> variants;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        variants.push_back(whole.substr(0, length));
        XMLDataWrapper wrapper;
        EXPECT_FALSE(wrapper.LoadXMLText(variants.back(), true) && length < whole.find("</ConfigDef>") + 12);
    }
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        variants.push_back(whole);
        variants.back()[bit / 8] = static_cast<char>(whole[bit / 8] ^ (1 << (bit % 8)));
    }
    for (const std::string& variant : variants) {
        try {
            Load(variant);
            Merge("<ConfigDef Name='base'><Hidden>true</Hidden></ConfigDef>\n====\n" + variant);
        } catch (const Violation& violation) {
            ADD_FAILURE() << violation.what << "\n" << variant;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Fuzz, Replay, testing::ValuesIn(Targets()),
                         [](const auto& test) { return std::string(test.param.name); });

} // namespace
} // namespace Fuzz
