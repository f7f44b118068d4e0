// The tool is a program, not a library: the parts that are tested alone are compiled into this test.
#include "../../Tools/lanedoc/DocPath.cpp"

#include <gtest/gtest.h>

namespace {

using namespace Lanedoc;
using Selector = PathStep::Selector;

TEST(DocPath, ReadsStepsAndWritesThemBack) {
    struct Case {
        std::string text;
        std::vector<PathStep> steps;
        std::string written; ///< where it differs from the text
    };
    const std::vector<Case> cases = {
        {"Version", {{"Version"}}, ""},
        {"StateTable/@Name", {{"StateTable"}, {"Name", true}}, "StateTable/Name"},
        {"State[3]", {{"State", false, Selector::Position, "", "", 3}}, ""},
        {"State[03]", {{"State", false, Selector::Position, "", "", 3}}, "State[3]"},
        {"State[Name=Idle]/Doc[Index=1]",
         {{"State", false, Selector::Key, "Name", "Idle"}, {"Doc", false, Selector::Key, "Index", "1"}},
         ""},
        {"State[Name=a=b [c 'd' ü]", {{"State", false, Selector::Key, "Name", "a=b [c 'd' ü"}}, ""},
        {R"(State[Name="a/b]"]/X)", {{"State", false, Selector::Key, "Name", "a/b]"}, {"X"}}, ""},
        {R"(State[Name="say ""hi"""])", {{"State", false, Selector::Key, "Name", R"(say "hi")"}}, ""},
        {R"(State[Name=""""])", {{"State", false, Selector::Key, "Name", "\""}}, ""},
        {R"(State[Name=""])", {{"State", false, Selector::Key, "Name", ""}}, "State[Name=]"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(ParsePath(c.text), c.steps);
        std::string written;
        for (const PathStep& step : c.steps) {
            written = FieldPath::Join(written, FormatStep(step));
        }
        EXPECT_EQ(written, c.written.empty() ? c.text : c.written);
    }
}

TEST(DocPath, RefusesWhatIsNoPathAndTellsWhere) {
    struct Case {
        std::string text;
        std::size_t offset;
    };
    const std::vector<Case> cases = {
        {"/StateTable", 0},
        {"StateTable/", 11},
        {"a//b", 2},
        {"State[", 6},
        {"State[0]", 6},
        {"State[1", 7},
        {"State[Name]", 10},
        {"State[Name=a", 12},
        {R"(State[Name=a"b])", 12},
        {R"(State[Name="a])", 11},
        {R"(State[Name="a"b])", 14},
        {"State[1]x", 8},
        {"@Name/x", 5},
        {"State[99999999999999999999]", 6},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text);
        try {
            ParsePath(c.text);
            ADD_FAILURE() << "was read as a path";
        } catch (const PathError& error) {
            EXPECT_EQ(error.Offset(), c.offset) << error.what();
        }
    }
}

} // namespace
