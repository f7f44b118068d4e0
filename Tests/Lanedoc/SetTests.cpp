#include <vector>

#include "LanedocRuns.h"

namespace {

class LanedocSet : public LanedocRuns {
protected:
    void SetUp() override {
        LanedocRuns::SetUp();
        Put("a.xml", text);
    }

    /// The text with one part of it replaced, which must be there once.
    static std::string With(std::string changed, const std::string& from, const std::string& to) {
        const std::size_t at = changed.find(from);
        EXPECT_TRUE(at != std::string::npos && changed.find(from, at + 1) == std::string::npos) << from;
        return changed.replace(at, from.size(), to);
    }

    // Everything that a rewritten document would lose: byte order mark, quotes, blanks in tags, CR LF, comments,
    // unknown elements, and no line end behind the last line.
    static constexpr const char* text = "\xEF\xBB\xBF<?xml version='1.0'?>\r\n<!-- é -->\r\n"
                                        "<StateProcessingRoot  Version = '1'>\r\n"
                                        "\t<RevisionHistory fileName='a=b].xml'>first</RevisionHistory>\r\n"
                                        "\t<StateTable Name=\"T\" InitialState='Idle' >\r\n\r\n"
                                        "\t\t<State Name='Idle' CacheActions='yes'><Doc>one</Doc> "
                                        "<Doc><![CDATA[two]]></Doc><Odd a='&#65;'/></State>\r\n"
                                        "\t\t<State Name='x]=&quot;y' BaseState='odd'></State>\r\n"
                                        "\t</StateTable><?pi?>\r\n</StateProcessingRoot><!-- end -->";
};

TEST_F(LanedocSet, ChangesTheNamedValueAndNoOtherByte) {
    struct Case {
        const char* assignments;
        const char* from;
        const char* to;
    };
    const std::vector<Case> cases = {
        {"Version=2", "Version = '1'", "Version = '2'"},
        {"@Version=a=b", "Version = '1'", "Version = 'a=b'"},
        {"Version=", "Version = '1'", "Version = ''"},
        {"Version=5 Version=1 StateTable/InitialState=Late", "'Idle' >", "'Late' >"},
        {"'RevisionHistory[fileName=\"a=b].xml\"]=last one'", ">first<", ">last one<"},
        {"'StateTable/State[Name=Idle]/Doc[Index=1]=uno'", ">one<", ">uno<"},
        {"'StateTable/State[1]/Doc[2]=due'", "CDATA[two]", "CDATA[due]"},
        {"StateTable/State[Name=Idle]/CacheActions=false", "'yes'", "'false'"},
        {R"('StateTable/State[Name="x]=""y"]/BaseState=even')", "'odd'", "'even'"},
        {R"('StateTable/State[Name="x]=""y"]/Transient=on')", "'odd'>", "'odd' Transient='true'>"},
        {"StateTable/State[Name=Idle]/Name=A 'StateTable/State[Name=A]/Doc[1]=1' StateTable/State[1]/Name=Idle",
         ">one<", ">1<"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.assignments);
        const std::string changed = With(text, c.from, c.to);
        const Result toOutput = Run(std::string("set a.xml ") + c.assignments);
        EXPECT_EQ(toOutput.code, 0) << toOutput.errors;
        EXPECT_EQ(toOutput.out, changed);
        EXPECT_EQ(toOutput.errors, "");
        EXPECT_EQ(Run(std::string("set - ") + c.assignments + " <a.xml").out, changed);
        EXPECT_EQ(Get("a.xml"), text) << "without --in-place nothing is written";
        Put("b.xml", text);
        EXPECT_EQ(Run(std::string("set -i b.xml ") + c.assignments).out, "");
        EXPECT_EQ(Get("b.xml"), changed);
    }
}

TEST_F(LanedocSet, SetsWhatGetReads) {
    // Of every kind: absent element, number, word, entry of a plain list; and texts that XML writes as references.
    for (const char* const pair :
         {"CommConfig.xml 'CommEntry[name=HostTcp]/Parameters/Port' -17", "CaptureConfig.xml MaxTransactions 7",
          "LoadConfig.xml 'ThreadChildList[UniqueName=Platform]/DataStorageContainer[1]/PersistenceModel' Selective",
          "LoadConfig.xml 'ThreadChildList[UniqueName=Platform]/DataStorageContainer[1]/LoadPath[2]' 'a <&>\"  b'",
          "StateProcessingRoot.xml StateTable/InitialState '<&\">'"}) {
        SCOPED_TRACE(pair);
        const std::string script = std::string("set -- ") + pair +
                                   "; '" FRAMEWORK_LANEDOC "' set examples/$1 \"$2=$3\" >b.xml && "
                                   "[ \"$('" FRAMEWORK_LANEDOC "' get b.xml \"$2\")\" = \"$3\" ]";
        EXPECT_EQ(std::system(script.c_str()), 0);
    }
}

TEST_F(LanedocSet, RefusesTheRestAndLeavesEverythingAsItWas) {
    Put("broken.xml", "<StateProcessingRoot>");
    const std::vector<Answer> answers = {
        {"a.xml", 2, "ASSIGNMENT"},
        {"a.xml Version", 2, "no \"=\" behind the path"},
        {"a.xml 'StateTable/State[Name=\"a]=b'", 2, "no end of the brackets or quotes"},
        {"a.xml =1", 2, "name a field: Version"},
        {"a.xml StateTable=1", 2, "StateTable/InitialState"},
        {"a.xml StateTable/State=1", 2, "as in StateTable/State[Name=Idle]/..."},
        {"a.xml StateTable/State[1]/Doc=1", 2, "as in StateTable/State[Name=Idle]/Doc[Index=1]"},
        {"a.xml StateTable/State[2]/Doc=1", 2, "without entries"},
        {"a.xml StateTable/State[1]/Doc[3]=1", 1, "the list has 2"},
        {"a.xml StateTable/State[Name=Late]/Transient=true", 1, "no entry State[Name=Late]"},
        {"a.xml StateTable/State[1]/PreStateTrigger/ActionRef=x", 1, "no PreStateTrigger"},
        {"a.xml Version=2 StateTable/State[1]/Transient=maybe", 2, "\"maybe\": expected true or false"},
        {"a.xml Version=2 StateTable/State[1]/Name='x]=\"y'", 2, "another entry of the list has that key"},
        {"a.xml Version=\"$(printf 'a\\033b')\"", 2, "\"a\\x1Bb\""},
        {"a.xml Version=\"$(printf '\\377')\"", 2, "UTF-8"},
        {"a.xml 'StateTable/State[1]/Doc[1]='\"$(printf '\\001')\"", 2, "XML forbids"},
        {"examples/CommConfig.xml 'CommEntry[name=HostTcp]/Parameters/Port=80a'", 2, "a whole number"},
        {"examples/CommConfig.xml 'CommEntry[name=HostTcp]/Parameters/Port=2147483648'", 2, "to 2147483647"},
        {"examples/LoadConfig.xml 'ThreadChildList[1]/DataStorageContainer[1]/PersistenceModel=never'", 2,
         "did you mean Never?"},
        {"- Version=2 -i <a.xml", 2, "standard input cannot be changed in place"},
        {"a.xml Version=2 --diff --context -1", 2, "--context"},
        {"broken.xml Version=2", 3, "broken.xml:1:22: error: "},
    };
    for (const std::string command : {"set ", "set -i ", "set --diff "}) {
        ExpectAnswers(command, answers);
        EXPECT_EQ(Get("a.xml"), text);
    }
}

TEST_F(LanedocSet, PrintsADiffThatPatchApplies) {
    EXPECT_EQ(Run("set a.xml StateTable/InitialState=Late --diff --context 0").out,
              "--- a.xml\n+++ a.xml\n@@ -5 +5 @@\n-\t<StateTable Name=\"T\" InitialState='Idle' >\r\n"
              "+\t<StateTable Name=\"T\" InitialState='Late' >\r\n");
    const std::string painted =
        Run("--color always set a.xml StateTable/Name=\"$(printf '\\302\\233\\t')\" --diff").out;
    EXPECT_TRUE(Holds(painted, "\n\x1b[32m+\t<StateTable Name=\"\xEF\xBF\xBD")) << painted;
    EXPECT_FALSE(Holds(painted, "\r") || Holds(painted, "\xC2\x9B")) << "for eyes, no control character is left";

    Put("one line.xml", "<StateProcessingRoot Version='1'/>");
    Put("example.xml", Get("examples/StateProcessingRoot.xml"));
    const std::string states = "example.xml 'StateTable/State[Name=Coupon]/Transient=true' Version=5 "
                               "'StateTable/State[Name=Coupon]/Doc[1]=two\nlines' "
                               "'StateTable/State[35]/Doc[1]=x' 'StateTable/State[1]/Doc[2]=x\n\n'";
    for (const std::string& arguments :
         {std::string("a.xml Version=2 StateTable/State[1]/Doc[2]=x"), std::string("'one line.xml' Version=2"), states,
          states + " --context 0", states + " --context 1", states + " --context 10000"}) {
        SCOPED_TRACE(arguments);
        const std::string file =
            arguments.starts_with('\'') ? "one line.xml" : arguments.substr(0, arguments.find(' '));
        const std::string before = Get(file);
        const Result printed = Run("set " + arguments + " --diff");
        Put("changes.diff", printed.out);
        EXPECT_EQ(Run("set " + arguments + " --diff --in-place").out, printed.out);
        const std::string after = Get(file);
        EXPECT_TRUE(printed.code == 0 && after != before) << printed.errors;
        Put(file, before);
        EXPECT_EQ(std::system("patch -s -p0 <changes.diff"), 0) << printed.out;
        EXPECT_TRUE(Get(file) == after) << printed.out;
        Put(file, before);
    }
}

/// Somebody else overwrites the first byte of the file before each call in turn that lanedoc makes for it.
TEST_F(LanedocSet, NeverOverwritesWhatOthersWroteMeanwhile) {
    std::filesystem::create_directory("lane");
    const std::string folder = std::filesystem::canonical("lane").string();
    const std::string file = folder + "/a.xml";
    const std::string theirs = "X" + std::string(text).substr(1);
    std::string call;
    for (int number = 1; call != "rename"; ++number) {
        ASSERT_LT(number, 50);
        Put(file, text);
        std::filesystem::remove("calls");
        const std::string faults = "FAULT_FOLDER='" + folder +
                                   "' FAULT_LOG=calls FAULT_ACTION=meddle FAULT_AT=" + std::to_string(number) +
                                   " FAULT_MEDDLE='" + file + "' ";
        const int status = std::system(
            (faults + "ASAN_OPTIONS=\"$ASAN_OPTIONS:verify_asan_link_order=0\" LD_PRELOAD='" + FRAMEWORK_FAULT_SHIM +
             "' '" + FRAMEWORK_LANEDOC + "' set -i '" + file + "' Version=2 2>errors.txt")
                .c_str());
        std::ifstream calls("calls");
        for (int line = 0; line < number && calls >> call; ++line) {
            calls.ignore(10000, '\n');
        }
        SCOPED_TRACE("before call " + std::to_string(number) + ", " + call + ": " + Get("errors.txt"));
        const int code = WEXITSTATUS(status);
        if (call == "rename") { // the instant that is left
            EXPECT_EQ(code, 0);
        } else {
            EXPECT_TRUE(code == 3 || (code == 5 && Holds(Get("errors.txt"), "a.xml: error: not saved: the file has")));
            EXPECT_EQ(Get(file), theirs);
        }
    }
}

TEST_F(LanedocSet, LeavesAFileAloneWhenNothingChanges) {
    const auto longAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(100);
    std::filesystem::last_write_time("a.xml", longAgo);
    // What is there already, also in other words, and what an absent node reads as.
    const std::string same =
        "set a.xml Version=1 StateTable/State[1]/CacheActions=true StateTable/State[1]/Transient=false";
    EXPECT_EQ(Run(same + " --in-place --diff").out, "");
    EXPECT_EQ(std::filesystem::last_write_time("a.xml"), longAgo);
    EXPECT_EQ(Run(same).out, text);
    EXPECT_EQ(Run("set a.xml Version=2 -i").code, 0);
    EXPECT_NE(std::filesystem::last_write_time("a.xml"), longAgo);
}

} // namespace
