// The tool is a program, not a library: the parts that are tested alone are compiled into this test.
#include "../../Tools/lanedoc/DocPath.cpp"

#include <map>

#include <gtest/gtest.h>

namespace {

using namespace Lanedoc;

TEST(DocPath, WritesBackWhatItRead) {
    const std::map<std::string, std::string> cases = {
        {"Version", "Version"},
        {"StateTable/@Name", "StateTable/Name"},
        {"State[3]/Doc[03]", "State[3]/Doc[3]"},
        {"State[Name=Idle]/Doc[@Index=1]", "State[Name=Idle]/Doc[Index=1]"},
        {"State[Name=a=b [c 'd' ü]", "State[Name=a=b [c 'd' ü]"},
        {R"(State[Name="a/b]"]/X)", R"(State[Name="a/b]"]/X)"},
        {R"(State[Name="say ""hi"""])", R"(State[Name="say ""hi"""])"},
        {R"(State[Name="plain"])", "State[Name=plain]"},
        {R"(State[Name=""])", "State[Name=]"},
    };
    for (const auto& [text, expected] : cases) {
        std::string written;
        for (const PathStep& step : ParsePath(text)) {
            written = FieldPath::Join(written, FormatStep(step));
        }
        EXPECT_EQ(written, expected);
    }
}

TEST(DocPath, RefusesWhatIsNoPathAtTheMark) {
    for (const std::string marked :
         {"^/StateTable", "StateTable/^", "a/^/b", "@Name^/x", "@Name^[1]", "State[^", "State[^0]",
          "State[^99999999999999999999]", "State[1^", "State[1]^x", "State[Name^]", "State[Name=a^",
          R"(State[Name=a^"b])", R"(State[Name=^"a])", R"(State[Name="a"^b])"}) {
        const std::size_t mark = marked.find('^');
        SCOPED_TRACE(marked);
        try {
            ParsePath(marked.substr(0, mark) + marked.substr(mark + 1));
            ADD_FAILURE() << "was read as a path";
        } catch (const PathError& error) {
            EXPECT_EQ(error.Offset(), mark) << error.what();
        }
    }
}

} // namespace
