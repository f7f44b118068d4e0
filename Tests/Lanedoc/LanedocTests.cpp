#include <vector>

#include "LanedocRuns.h"

namespace {

class Lanedoc : public LanedocRuns {
protected:
    void SetUp() override {
        LanedocRuns::SetUp();
        Put("base.xml", baseText);
    }

    static std::string State(const std::string& below) {
        return "<StateProcessingRoot><StateTable>\n  " + below + "\n</StateTable></StateProcessingRoot>\n";
    }

    static constexpr const char* baseText = R"(<?xml version="1.0" encoding="UTF-8"?>
<StateProcessingRoot Version="1">
  <RevisionHistory fileName="a.xml">first</RevisionHistory>
  <StateTable Name="T" InitialState="Idle">
    <State Name="Idle" CacheActions="yes"><Doc>one</Doc><Doc>two &amp; "2"</Doc></State>
    <State Name="a/b]&quot;c" BaseState="odd"/>
    <State Name=""/>
  </StateTable>
</StateProcessingRoot>
)";
};

TEST_F(Lanedoc, AnswersEveryUseWithItsCodeAndWord) {
    Put("broken.xml", "<StateProcessingRoot>\n  <StateTable>\n</StateProcessingRoot>\n");
    Put("unknown.xml", "<!-- <x> -->\n <StateProcesingRoot/>\n");
    Put("other.xml", "<?xml version='1.0'?>\n<!-- é --> <CommConfig/>\n");
    Put("nokey.xml", State("<State Transient='true'/>"));
    Put("word.xml", State("<State Name='Idle' MergeAction='Sideways'/>"));
    Put("fine.xml", State("<State Name='Idle' BaseState='New'/>"));
    Put("twice.xml", State("<State Name='A'/>\n  <State Name='A'/>"));
    std::string wide = "\xFF\xFE"; // UTF-16
    for (const char character : std::string("<!-- <a> --><?b <c> ?>\r<CommConfig/>")) {
        wide.append(1, character).append(1, '\0');
    }
    Put("wide.xml", wide);
    const std::vector<Answer> answers = {
        {"--version", 0, ""},
        {"--help", 0, ""},
        {"show base.xml StateTable/State[1] --no-defaults", 0, ""},
        {"get base.xml StateTable/State[Name=Idle]/Transient", 1, R"(its default is "false")"},
        {"get base.xml 'StateTable/State[Name=Idel]/Transient'", 1, "did you mean Idle?"},
        {"get base.xml 'StateTable/State[9]/Name'", 1, "the list has 3"},
        {"get base.xml StateTable/State[1]/StateTriggers", 1, "no StateTriggers in StateTable/State[Name=Idle]"},
        {"get base.xml StateTable/State[3]/Doc", 1, "empty list"},
        {"show base.xml 'RevisionHistory[fileName=b.xml]'", 1, "did you mean a.xml?"},
        {"show base.xml --limit depth=4 --no-defaults", 0, ""},
        {"show base.xml --limit depth=3", 3,
         "base.xml:5:43: error: elements are nested too deeply, the limit is 3; raise "
         "it with --limit depth=NUMBER"},
        {"show - --limit bytes=9 <base.xml", 3, "<stdin>: error: the document has more bytes than the limit of 9"},
        {"show base.xml --limit cpuSeconds=none --limit memory=9", 3, "raise it with --limit memory=NUMBER"},
        {"show base.xml --limit dept=3", 2, "no such limit; did you mean depth?"},
        {"", 2, "subcommand"},
        {"get base.xml", 2, "PATH"},
        {"show base.xml --format yaml", 2, "yaml"},
        {"get base.xml StateTabel/Name", 2, "did you mean StateTable?"},
        {"get base.xml StateTable", 2, "StateTable/InitialState"},
        {"get base.xml StateTable/State", 2, "as in StateTable/State[Name=Idle]/..."},
        {"get base.xml 'StateTable/State[Nam=Idle]/Name'", 2, "State[Name=Idle]"},
        {"get base.xml 'StateTable[1]/Name'", 2, "is no list"},
        {"get base.xml @StateTable", 2, "is no attribute"},
        {"get base.xml 'StateTable/State[Name=\"a'", 2, "\n                        ^"},
        {"set base.xml Version=2 --context 1", 2, "--diff"},
        {"merge - fine.xml -", 2, "standard input can be one document only"},
        {"show missing.xml", 3, "missing.xml: error: "},
        {"show - <broken.xml", 3, "<stdin>:3:3: error: "},
        {"show unknown.xml", 3, "unknown.xml:2:2: error: "},
        {"show unknown.xml", 3, R"(did you mean "StateProcessingRoot"?)"},
        {"merge base.xml fine.xml other.xml", 3, "other.xml:2:12: error: the root element is CommConfig, expected"},
        {"merge base.xml wide.xml", 3, "wide.xml:2:1: error: the root element is CommConfig, expected"},
        {"merge base.xml nokey.xml", 4, "nokey.xml:2:3: error: "},
        {"merge base.xml - <word.xml", 4, "<stdin>:2:22: error: "},
        {"merge twice.xml fine.xml", 0, "twice.xml:3:3: warning: "},
        {"explain base.xml fine.xml -p StateTable/InitialStat", 2, "did you mean InitialState?"},
        {"explain base.xml fine.xml -p 'StateTable/State[Name=Busy]/Name'", 1, "no entry State[Name=Busy]"},
        {"blame base.xml fine.xml --feature fin", 2, R"(no feature "fin" is merged; did you mean fine?)"},
        {"merge base.xml fine.xml --on-conflict 2", 2, "--on-conflict: 2 not in {error,last,warn}"},
        {"merge base.xml fine.xml --report -", 2, "name a file by -o"},
        {"merge base.xml fine.xml -o out.xml --report ./fine.xml", 2, "where a document is: fine.xml"},
        {"merge base.xml fine.xml -o out.xml --report missing/report", 5, "missing/report: error: cannot write"},
        {"merge base.xml fine.xml >/dev/full", 5, "cannot write"},
        {"get base.xml Version >&-", 5, "cannot write"},
        {"set base.xml Version=2 >/dev/full", 5, "cannot write"},
        {"merge base.xml fine.xml -o missing/out.xml", 5, "missing/out.xml: error: "},
        {"merge base.xml fine.xml -o /dev/full", 5, "/dev/full: error: "},
    };
    ExpectAnswers("", answers);
}

TEST_F(Lanedoc, EndsWhenItsReaderGoesAway) {
    // More than a pipe holds, so that the writer meets its closed end.
    const int status =
        std::system("bash -c \"'" FRAMEWORK_LANEDOC "' show examples/StateProcessingRoot.xml 2>errors.txt | "
                    "sleep 0; exit \\${PIPESTATUS[0]}\"");
    EXPECT_EQ(WEXITSTATUS(status), 5);
    EXPECT_TRUE(Holds(Get("errors.txt"), "cannot write")) << Get("errors.txt");
}

TEST_F(Lanedoc, GetsValuesRaw) {
    const std::pair<const char*, std::string> cases[] = {
        {"base.xml Version", "1\n"},
        {"base.xml 'StateTable/State[Name=Idle]/CacheActions'", "true\n"},
        {"base.xml 'StateTable/State[Name=Idle]/Transient' --defaults", "false\n"},
        {"base.xml 'StateTable/State[Name=Idle]/Doc'", "one\ntwo & \"2\"\n"},
        {"base.xml 'StateTable/State[1]/Doc' -0", std::string("one\0two & \"2\"\0", 14)},
        {"base.xml 'StateTable/State[1]/Doc[Index=2]'", "two & \"2\"\n"},
        {R"(base.xml 'StateTable/State[Name="a/b]""c"]/BaseState')", "odd\n"},
        {"base.xml 'RevisionHistory[fileName=a.xml]'", "first\n"},
        {"- 'StateTable/@InitialState' <base.xml", "Idle\n"},
        {"examples/CommConfig.xml 'CommEntry[name=HostTcp]/Parameters/Port'", "7411\n"},
        {"examples/CommConfig.xml 'CommEntry[1]/EventTransformerList/EventTransformer[2]/TransformerName'", "Trace\n"},
    };
    for (const auto& [arguments, out] : cases) {
        EXPECT_EQ(Run(std::string("get ") + arguments).out, out) << arguments;
    }
}

TEST_F(Lanedoc, ShowsTheTreeWithPathsThatLeadBack) {
    const std::string text = Run("show base.xml").out;
    for (const char* const line :
         {"StateProcessingRoot  StateProcessingRootType\n", "  Version                          \"1\"\n",
          "    State[Name=Idle]  StateDefinitionType\n", "      Doc[Index=2]  \"two & \\\"2\\\"\"\n",
          "      CacheActions  true\n", "      Transient     false  (default)\n",
          "    State[Name=\"a/b]\"\"c\"]  StateDefinitionType\n"}) {
        EXPECT_TRUE(Holds(text, line)) << line << "in\n" << text;
    }
    EXPECT_FALSE(Holds(Run("show base.xml --no-defaults").out, "(default)"));
    EXPECT_TRUE(Holds(Run("--color=always show base.xml").out, "\x1b[1mStateProcessingRoot\x1b[0m"));
    EXPECT_TRUE(Holds(Run("show base.xml --color always").out, "\x1b["));
    ::setenv("CLICOLOR_FORCE", "1", 1);
    EXPECT_TRUE(Holds(Run("show base.xml").out, "\x1b["));
    ::setenv("NO_COLOR", "1", 1);
    EXPECT_FALSE(Holds(Run("show base.xml").out, "\x1b["));
    ::unsetenv("CLICOLOR_FORCE");
    ::unsetenv("NO_COLOR");
}

TEST_F(Lanedoc, WritesNothingWhenAnythingIsWrong) {
    Put("nokey.xml", State("<State Transient='true'/>\n  <State Name='New'/>"));
    Put("broken.xml", "<StateProcessingRoot>");
    Put("out.xml", "as it was");
    for (const char* const arguments :
         {"merge base.xml nokey.xml -o out.xml", "merge base.xml broken.xml -o out.xml",
          "merge broken.xml nokey.xml -o out.xml", "merge base.xml missing.xml -o out.xml"}) {
        SCOPED_TRACE(arguments);
        EXPECT_NE(Run(arguments).code, 0);
        EXPECT_EQ(Get("out.xml"), "as it was");
    }
    EXPECT_EQ(Run("merge base.xml nokey.xml -o out.xml --keep-going").code, 4) << "written, and still refused in part";
    EXPECT_EQ(Run("get out.xml 'StateTable/State[Name=New]/Name'").out, "New\n");
    EXPECT_EQ(Run("merge base.xml broken.xml -o out.xml --keep-going").code, 3);

    // The base may be the output: it was read before.
    EXPECT_EQ(Run("merge out.xml nokey.xml -o out.xml --keep-going").code, 4);
    EXPECT_EQ(Run("get out.xml Version").out, "1\n");
}

} // namespace
