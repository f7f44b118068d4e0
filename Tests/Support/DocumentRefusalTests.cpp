#include "Framework/LoadLimits.h"
#include "Framework/XMLSupport/Document.h"
#include "Framework/XMLSupport/ParseError.h"
#include "Framework/XMLSupport/TextEncoding.h"

#include "Repeat.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace Framework {
namespace {

using namespace std::literals;

/// what() of the refusal, or that there was none.
std::string Refusal(std::string bytes, const LoadLimits& limits = LoadLimits()) {
    try {
        Document::Parse(std::move(bytes), "f", limits);
    } catch (const ParseError& error) {
        EXPECT_EQ(error.SourceName(), "f");
        EXPECT_EQ(error.what(), "f:" + std::to_string(error.Where().line) + ":" + std::to_string(error.Where().column) +
                                    ": " + error.Message());
        return error.what();
    }
    return "accepted";
}

TEST(DocumentRefusal, RefusesWhatPassesALimitAndTellsHowToRaiseIt) {
    LoadLimits small;
    small.bytes = 1000;
    small.nodes = 5;
    EXPECT_EQ(Refusal(std::string(1001, ' '), small), "f:1:1: the document has 1001 bytes, the limit is 1000; raise "
                                                      "LoadLimits::bytes with LoadLimits::Scope or SetDefault");
    EXPECT_EQ(Refusal("<a k='1'>x<b/>\n</a>", small), "accepted");
    EXPECT_EQ(Refusal("<a k='1'>x<b/>\n<b/></a>", small),
              "f:2:1: the document has too many nodes, the limit is 5; raise "
              "LoadLimits::nodes with LoadLimits::Scope or SetDefault");
    const std::string items = "<a>" + Repeat("<i/>", 3000) + "</a>";
    LoadLimits hasty;
    hasty.cpuSeconds = 0;
    const std::string what = Refusal(items, hasty);
    EXPECT_NE(what.find("the limit is 0 s; raise LoadLimits::cpuSeconds"), what.npos) << what;
    hasty.cpuSeconds = 1000;
    EXPECT_EQ(Refusal(items, hasty), "accepted");
}

TEST(DocumentRefusal, RefusesTagsThatCostTheParserTooMuch) {
    LoadLimits limits;
    limits.bytesPerTag = 20;
    limits.attributesPerElement = 2;
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"<a k='0123456789abc'/>", "f:1:1: a tag has too many bytes, the limit is 20; raise LoadLimits::bytesPerTag"},
        {"<a>\n<b k='>>>>>>>>>>>>>>>>'/></a>", "f:2:1: a tag has too many bytes"},
        {"<a><b></b                 ></a>", "f:1:7: a tag has too many bytes"},
        {"<a>\n<bbbbbbbbbbbbbbbbbbbbbbbbbbbbb", "f:2:1: a tag has too many bytes"},
        {"<a>\n<b k='' l='' \nm=''/></a>", "f:3:1: too many attributes in one tag, the limit is 2; raise"},
        {"<a b='' c='' d ='<'/>", "f:1:14: too many attributes in one tag"},
        {"<a><b></c><b k='0123456789abc'/></a>", "f:1:9: found </c>"}, // what comes first is told
        {"<!DOCTYPE a ''  '' '' '' '' '' '' '' '' ''><a/>", "f:1:1: a document type (DOCTYPE) is not allowed"},
        {"<a>\n<!--<b k='' l='' m=''>--><![CDATA[<b k='' l='' m=''/>]]><?p <b k='' l='' m=''?>'' '' '' '' '' ''</a>",
         "accepted"},
        {"<a k='>>=&gt;' l=''/>", "f:1:1: a tag has too many bytes"},
        {"<a k='>\"' \tl='>'\n/>", "accepted"},
    };
    for (const auto& [text, start] : cases) {
        EXPECT_TRUE(Refusal(text, limits).starts_with(start)) << text << "\n" << Refusal(text, limits);
    }
}

TEST(DocumentRefusal, RefusesWhatTakesTooMuchMemory) {
    std::string text = "<a>\n";
    for (int number = 0; number < 100'000; ++number) {
        text += "<n" + std::to_string(number) + "/>";
    }
    text += "</a>";
    LoadLimits limits;
    for (const std::size_t most : {text.size(), text.size() * 2, text.size() * 4}) {
        limits.memory = most;
        const std::string what = Refusal(text, limits);
        EXPECT_TRUE(what.starts_with("f:2:")) << what;
        EXPECT_NE(what.find(": parsing takes too much memory, the limit is " + std::to_string(most) +
                            " bytes; raise LoadLimits::memory"),
                  what.npos)
            << what;
    }
    EXPECT_EQ(Refusal(text), "accepted");
    limits.memory = 100; // already the conversion to UTF-8
    const std::string wide = EncodeDocument("<a>" + std::string(40, '0') + "</a>", "UTF-16LE", true).value();
    EXPECT_TRUE(Refusal(wide, limits).starts_with("f:1:1: parsing takes too much memory"));
}

TEST(DocumentRefusal, LimitsHoldForTheProcessOrForOneThreadsBlock) {
    const LoadLimits before = LoadLimits::Default();
    EXPECT_EQ(before.depth, 256U);
    LoadLimits other;
    other.depth = 3;
    LoadLimits::SetDefault(other);
    EXPECT_EQ(LoadLimits::Default().depth, 3U);
    {
        other.depth = 5;
        const LoadLimits::Scope outer(other);
        {
            const LoadLimits::Scope inner(LoadLimits::None());
            EXPECT_GT(LoadLimits::Current().depth, 256U);
        }
        EXPECT_EQ(LoadLimits::Current().depth, 5U);
        std::thread([] { EXPECT_EQ(LoadLimits::Current().depth, 3U); }).join();
    }
    EXPECT_EQ(LoadLimits::Current().depth, 3U);
    LoadLimits::SetDefault(before);
    EXPECT_EQ(LoadLimits::Default().depth, 256U);
}

} // namespace
} // namespace Framework
