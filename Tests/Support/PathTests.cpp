#include "Framework/XMLSupport/QueryChain.h"
#include "Framework/XMLSupport/QueryPath.h"

#include <gtest/gtest.h>

namespace Framework {
namespace {

/// What was read: `//name`, `#n` for a position, {attribute|value} for a condition; "ambiguous", "other".
std::string Read(std::string_view query) {
    const ParsedPath parsed = ParseQueryPath(query);
    if (parsed.kind != PathKind::Simple) {
        return parsed.kind == PathKind::Ambiguous ? "ambiguous" : "other";
    }
    std::string text = parsed.path.fromDocument ? "//" : "";
    for (const PathStep& step : parsed.path.steps) {
        text += (&step == parsed.path.steps.data() ? "" : "/") + std::string(step.isAttribute ? "@" : "") + step.name;
        text += step.position == 0 ? "" : "#" + std::to_string(step.position);
        for (const PathCondition& condition : step.conditions) {
            text += "{" + condition.attribute + "|" + condition.value + "}";
        }
    }
    return text;
}

TEST(QueryPath, ReadsTheSmallLanguageAndLeavesTheRest) {
    const struct {
        const char* query;
        const char* read;
    } cases[] = {
        {"a", "a"},
        {"//p:a-b.c_1/\xC3\xA4", "//p:a-b.c_1/\xC3\xA4"},
        {"@k", "@k"},
        {"a[1][@k='x']/b[2][@l='y'  and @m=z]/c", "a#1{k|x}/b#2{l|y}{m|z}/c"},
        // As containers name their entries: a blank behind each term, "and" with a blank of its own.
        {"//r/a[@k='1'  and @l='2'  and @m='3' ]/b[@k='4' ]/@x", "//r/a{k|1}{l|2}{m|3}/b{k|4}/@x"},
        {"a[@k='' and @l='']", "a{k|}{l|}"},
        {"a[@k=\"it's\" and @l='x']", "a{k|it's}{l|x}"},
        // Values are not escaped.
        {"a[@k='it's' ]", "a{k|it's}"},
        {"a[@k=''' ]", "a{k|'}"},
        {"a[@k='rock 'n' roll'  and @l='x' ]", "a{k|rock 'n' roll}{l|x}"},
        {"a[@k='x]/y[1]/z' ]/b", "a{k|x]/y[1]/z}/b"},
        {"a[@k='x']y' ]", "a{k|x']y}"},
        {"a[@k='x']/b[2]' ]", "a{k|x']/b[2]}"},
        {"a[@k='x and @l=y' ]", "a{k|x and @l=y}"},
        {"a[@k='x' and y' ]", "a{k|x' and y}"},
        // Two places may end the first value, and neither leaves fewer quotes over.
        {"a[@k='x' and @l=' and @m='y' ]", "ambiguous"},
        {"a[@k='x' and @l=1]/b[@m='y']", "ambiguous"},
        // Without quotes all up to the last bracket.
        {"Doc[@Index=7]", "Doc{Index|7}"},
        {"a[@k=]", "a{k|}"},
        {"a[@k='tis]/b", "a{k|'tis}/b"}, // a quote that nothing closes
        {"a[@k='\"]", "a{k|'\"}"},
        {"a[@k=x]/y[z]/b", "a{k|x]/y[z}/b"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(Read(row.query), row.read) << row.query;
    }
    for (const char* const query :
         {"",       "/",          "//",       "a/",       "a//b",        "/a/b",    "*",
          ".",      "../a",       "child::a", "1a",       "-a",          "a b",     "a|b",
          "text()", "a[last()]",  "a[@k]",    "a[@k='x'", "a[@k = 'x']", "a[1][2]", "a[@k='x'][1]",
          "@k[1]",  "@k[@l='x']", "@k/a",     "//@k"}) { // XPath has to answer or refuse these
        EXPECT_EQ(Read(query), "other") << query;
    }
}

TEST(QueryPath, ReadsLongTextsInLinearTimeAndWithoutRecursion) {
    std::string manyConditions = "a[@k0='v'";
    std::string sameAgain = "a[@k='";
    std::string manySteps = "a";
    for (int i = 1; i < 50'000; ++i) {
        manyConditions += " and @k" + std::to_string(i) + "='v'";
        sameAgain += "' ]/a[@k='";
        manySteps += "/a";
    }
    EXPECT_EQ(ParseQueryPath(manyConditions + "]").path.steps.at(0).conditions.size(), 50'000U);
    EXPECT_EQ(ParseQueryPath(sameAgain + "' ]").path.steps.size(), 50'000U);
    EXPECT_EQ(ParseQueryPath(manySteps).path.steps.size(), 50'000U);
    EXPECT_EQ(ParseQueryPath(sameAgain + "x]" + manySteps.substr(1)).path.steps.size(), 99'999U);
    for (const std::string& open : {manyConditions, sameAgain, sameAgain + "' x]" + manySteps.substr(1)}) {
        EXPECT_EQ(ParseQueryPath(open).kind, PathKind::Other);
    }
    const ParsedPath quotes = ParseQueryPath("a[@k='" + std::string(1'000'000, '\'') + "' ]");
    EXPECT_EQ(quotes.path.steps.at(0).conditions.at(0).value.size(), 1'000'000U);
}

TEST(QueryChain, GivesItsTextAndMayBeAsLongAsAList) {
    QueryChain chain;
    EXPECT_TRUE(chain.Empty());
    EXPECT_EQ(chain.Below("a").Text(), "/a");
    chain = QueryChain("//r");
    const QueryChain start = chain;
    EXPECT_EQ(chain.Below("a").Below("b").Text(), "//r/a/b");
    const QueryChain left = start.Below("left");
    const QueryChain right = start.Below("right"); // behind the same segment as the one before
    EXPECT_EQ(left.Below("x").Text() + right.Below("y").Text() + start.Text(), "//r/left/x//r/right/y//r");
    for (int i = 0; i < 300'000; ++i) {
        chain = chain.Below("a");
    }
    EXPECT_EQ(chain.Text().size(), 600'003U);
    chain = start; // gives the segments back, which must not take a call of stack for each
    EXPECT_EQ(chain.Text(), "//r");
}

} // namespace
} // namespace Framework
