#include "Framework/XMLSupport/PathLookup.h"

#include "Framework/XMLSupport/QueryChain.h"
#include "Framework/XMLSupport/QueryPath.h"
#include "TreeText.h"

#include <gtest/gtest.h>

namespace Framework {
namespace {

using Testing::Load;

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
        {"p:a-b.c_1/\xC3\xA4", "p:a-b.c_1/\xC3\xA4"},
        {"//a/b/c", "//a/b/c"},
        {"@k", "@k"},
        {"a/@p:k", "a/@p:k"},
        {"a[1]/b[20]", "a#1/b#20"},
        {"a[1][@k='x']/b[2][@l='y'  and @m=z]/c", "a#1{k|x}/b#2{l|y}{m|z}/c"},
        // As containers name their entries: a blank behind each term, "and" with a blank of its own.
        {"a[@k='v' ]", "a{k|v}"},
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
        // What XPath has to answer or refuse.
        {"", "other"},
        {"/", "other"},
        {"//", "other"},
        {"a/", "other"},
        {"a//b", "other"},
        {"/a/b", "other"},
        {"*", "other"},
        {".", "other"},
        {"../a", "other"},
        {"child::a", "other"},
        {"1a", "other"},
        {"-a", "other"},
        {"a b", "other"},
        {"a|b", "other"},
        {"text()", "other"},
        {"a[last()]", "other"},
        {"a[@k]", "other"},
        {"a[@k='x'", "other"},
        {"a[@k = 'x']", "other"},
        {"a[1][2]", "other"},
        {"a[@k='x'][1]", "other"},
        {"@k[1]", "other"},
        {"@k[@l='x']", "other"},
        {"@k/a", "other"},
        {"//@k", "other"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(Read(row.query), row.read) << row.query;
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

/// `<r>` with entries `<e k l>number</e>` among others: e, x, e, x, ...; then `tail`, and enough `<f/>` to make it
/// wide.
std::string Entries(int fillers) {
    std::string xml = "<r top='t'>";
    const char* const keys[][2] = {{"a", "1"}, {"b", "1"}, {"a", "2"}, {"a", "1"}, {"it's", ""}, {"1:a", "b"}};
    for (int i = 0; i < 6; ++i) {
        xml += "<e k=\"" + std::string(keys[i][0]) + "\" l=\"" + keys[i][1] + "\">" + std::to_string(i) + "</e> <x/>";
    }
    xml += "<e>6</e><tail><e k='a'>7</e></tail>";
    for (int i = 0; i < fillers; ++i) {
        xml += "<f/>";
    }
    return xml + "</r>";
}

std::string Found(const XmlTree& tree, std::string_view query) {
    ChildIndex index(tree);
    try {
        // Twice: what the first answer has indexed must not change the second.
        const NodeRef node = FindByPath(tree, index, tree.Root(), query);
        EXPECT_EQ(FindByPath(tree, index, tree.Root(), query), node) << query;
        return node == NodeRef::None ? "none" : TextOf(tree, node);
    } catch (const std::runtime_error&) {
        return "error";
    }
}

TEST(PathLookup, NarrowAndWideParentsGiveTheSame) {
    const struct {
        const char* query;
        const char* text;
    } cases[] = {
        {"e", "6"},
        {"e[1]", "0"},
        {"e[4]", "3"},
        {"e[7]", "6"},
        {"e[8]", "none"},
        {"e[0]", "none"},
        {"e[18446744073709551617]", "none"}, // one more than fits into 64 bits
        {"e[3][@k='a'  and @l='2' ]", "2"},
        {"e[2][@k='a' ]", "none"},
        {"//e[8][@k='a' ]", "7"},
        {"//e[7][@k='a' ]", "none"},
        {"e[@k='a' ]", "0"},
        {"e[@l='1'  and @k='a' ]", "0"},
        {"e[@k='a'  and @l='2' ]", "2"},
        {"e[@k='a'  and @l='3' ]", "none"},
        {"e[@k='it's' ]", "4"},
        {"e[@k='it's'  and @l='' ]", "4"},
        {"e[@k=1:a]", "5"},
        {"e[@m='' ]", "none"},
        {"E", "none"},
        {"@top", "t"},
        {"@k", "none"},
        {"e[3]/@l", "2"},
        {"tail/e", "7"},
        {"e/e", "none"},
        {"//e", "0"},
        {"//e[8]", "7"},
        {"//e[9]", "none"},
        {"//e[0]", "none"},
        {"//e[@k='a' ]", "0"},
        {"//e[@k='b'  and @l='1' ]", "1"},
        {"//e[@k='c' ]", "none"},
        {"//r/tail/e[@k='a' ]", "7"},
        {"//tail/e", "7"},
        {"//r/@top", "t"},
        {"//@k", "a"},
        {"../r/e", "0"}, // XPath takes the first
        {"e[@k='a'][2]", "2"},
        {"e[@k='x' and @l=' and @m='y' ]", "error"},
        {"e[", "error"},
        {"count(e)", "error"},
        {"$v", "error"},
        {"p:*", "error"},
        {"e[\xFF]", "error"},
    };
    const auto narrow = Load(Entries(0));
    const auto wide = Load(Entries(30));
    for (const auto& row : cases) {
        EXPECT_EQ(Found(*narrow, row.query), row.text) << row.query;
        EXPECT_EQ(Found(*wide, row.query), row.text) << row.query << ", wide";
    }
}

TEST(PathLookup, OneIndexServesDifferentQuestions) {
    const auto document = Load(Entries(30));
    ChildIndex index(*document);
    const NodeRef root = document->Root();
    std::string answers;
    for (const char* query : {"e[@k='a' ]", "e[@l='2' ]", "e[@k='a'  and @l='2' ]", "e[@l='1'  and @k='b' ]", "tail/e",
                              "//e[@l='2' ]", "e[@k='b' ]", "x[@k='a' ]", "e[2]", "e"}) {
        const NodeRef node = FindByPath(*document, index, root, query);
        answers += node == NodeRef::None ? "-" : TextOf(*document, node);
    }
    EXPECT_EQ(answers, "0221721-16");
}

TEST(QueryChain, GivesItsTextAndMayBeAsLongAsAList) {
    QueryChain chain;
    EXPECT_TRUE(chain.Empty());
    EXPECT_EQ(chain.Below("a").Text(), "/a");
    chain = QueryChain("//r");
    const QueryChain start = chain;
    EXPECT_EQ(chain.Below("a").Below("b").Text(), "//r/a/b");
    for (int i = 0; i < 300'000; ++i) {
        chain = chain.Below("a");
    }
    EXPECT_EQ(chain.Text().size(), 600'003U);
    chain = start; // gives the segments back, which must not take a call of stack for each
    EXPECT_EQ(chain.Text(), "//r");
}

} // namespace
} // namespace Framework
