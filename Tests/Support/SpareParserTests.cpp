#include "Framework/XMLSupport/SpareParsers.h"

#include "Framework/XMLSupport/ParseError.h"
#include "Support/TreeText.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

namespace Framework {
namespace {

using Testing::Load;
using Testing::TreeText;

constexpr std::size_t kMostForOne = std::size_t{32} * 1024;

/// What the parsers hold that are left after the load of a document, whether it is refused or not.
std::size_t KeptAfter(const std::string& xml, const LoadLimits& limits = LoadLimits()) {
    try {
        Document::Parse(xml, "test.xml", limits);
    } catch (const ParseError&) { // whether it is one is not asked here
    }
    return MemoryOfSpareParsers();
}

std::string WithNames(int count) {
    std::string xml = "<r>";
    for (int i = 0; i < count; ++i) {
        xml += "<n" + std::to_string(i) + "/>";
    }
    return xml + "</r>";
}

TEST(SpareParsers, AreKeptOnlyWhenSmallAndSound) {
    LoadLimits tight;
    tight.memory = 200'000;
    LoadLimits shallow;
    shallow.depth = 1;
    const std::string large = WithNames(20'000);

    FreeSpareParsers();
    EXPECT_EQ(KeptAfter(large), 0U);
    const std::size_t kept = KeptAfter("<r a='1'>text</r>");
    EXPECT_GT(kept, 0U);
    EXPECT_LE(kept, kMostForOne);
    EXPECT_EQ(KeptAfter("<r a='1'>text</r>"), kept) << "one load after the other needs one parser and no more memory";
    EXPECT_EQ(KeptAfter(large), kept) << "a large document leaves the one alone that small ones have kept";
    EXPECT_LE(KeptAfter(WithNames(900)), kMostForOne) << "a small one that makes a parser large";

    for (const char* const faulty : {"<r><a></r>", "<r>&unknown;</r>", "<r", "<!DOCTYPE r><r/>", "<r/>x"}) {
        FreeSpareParsers();
        EXPECT_GT(KeptAfter("<r/>"), 0U);
        EXPECT_EQ(KeptAfter(faulty), 0U) << faulty;
    }
    EXPECT_GT(KeptAfter("<r/>"), 0U);
    EXPECT_EQ(KeptAfter("<r><a/></r>", shallow), 0U) << "a handler stopped it";
}

/// The same limit lets the same documents pass, whatever was read before.
TEST(SpareParsers, DoNotDecideWhetherALimitIsPassed) {
    const std::string xml = WithNames(100);
    const auto least = [&] {
        LoadLimits limits;
        std::size_t passes = limits.memory = 1'000'000;
        for (std::size_t refused = 0; passes - refused > 1;) {
            limits.memory = refused + (passes - refused) / 2;
            try {
                Document::Parse(xml, "test.xml", limits);
                passes = limits.memory;
            } catch (const ParseError&) {
                refused = limits.memory;
            }
        }
        return passes;
    };
    FreeSpareParsers();
    const std::size_t alone = least();
    EXPECT_GT(alone, xml.size());
    EXPECT_GT(KeptAfter(WithNames(500)), 0U);
    EXPECT_EQ(least(), alone);
}

/// One that is in use is no spare one.
TEST(SpareParsers, AreUsedByOneAtATime) {
    FreeSpareParsers();
    Load("<r/>");
    const std::size_t one = MemoryOfSpareParsers();
    for (int round = 0; round < 2; ++round) {
        ParserMemory outerMemory(LoadLimits().memory);
        const ParserPtr outer = TakeParser(1, outerMemory);
        {
            ParserMemory innerMemory(LoadLimits().memory);
            const ParserPtr inner = TakeParser(1, innerMemory);
            ASSERT_TRUE(outer && inner);
            EXPECT_NE(outer.get(), inner.get());
            EXPECT_EQ(::XML_Parse(inner.get(), "<a/>", 4, XML_TRUE), XML_STATUS_OK);
        }
        EXPECT_EQ(::XML_Parse(outer.get(), "<b/>", 4, XML_TRUE), XML_STATUS_OK);
    }
    EXPECT_GT(MemoryOfSpareParsers(), one);
    EXPECT_LE(MemoryOfSpareParsers(), 2 * kMostForOne);
}

TEST(SpareParsers, GoFromThreadToThread) {
    FreeSpareParsers();
    std::vector<std::thread> threads(12); // more than parsers are kept
    for (std::thread& thread : threads) {
        thread = std::thread([] {
            for (int i = 0; i < 50; ++i) {
                EXPECT_EQ(TreeText(*Load("<r><a b='1'/></r>")), "()[r()[a(b=\"1\" )[]]]");
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_GT(MemoryOfSpareParsers(), 0U) << "they outlive the threads";
    EXPECT_LE(MemoryOfSpareParsers(), 8 * kMostForOne);
    FreeSpareParsers();
    EXPECT_EQ(MemoryOfSpareParsers(), 0U);
}

/// Objects of a host may load when the library's own end has come, and nobody would free what they leave behind.
struct LoadsAfterTheEnd {
    ~LoadsAfterTheEnd() {
        const bool isGone = MemoryOfSpareParsers() == 0;
        if (!isGone || TreeText(*Load("<r/>")) != "()[r()[]]" || MemoryOfSpareParsers() != 0) {
            std::cerr << "a load at the end of the process went wrong\n";
            std::abort();
        }
    }
};
[[gnu::init_priority(101)]] const LoadsAfterTheEnd loadsAfterTheEnd; // before all others, so that it ends after them

} // namespace
} // namespace Framework
