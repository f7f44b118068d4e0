// Every build replays what fuzzing starts from and what it has found.

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>

#include "Framework/XMLDataWrapper.h"
#include "Seeds.h"

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
