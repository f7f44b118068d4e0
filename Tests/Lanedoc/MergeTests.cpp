#include <vector>

#include "LanedocRuns.h"

namespace {

class LanedocMerge : public LanedocRuns {
protected:
    void SetUp() override {
        LanedocRuns::SetUp();
        Put("base.xml", Table("<State Name='A' BaseState='X'><Doc>one</Doc><Doc>two</Doc></State><State Name='B'/>"
                              "<State Name='C' Transient='true'/><State Name='D'/>"));
    }

    static std::string Table(const std::string& states) {
        return "<StateProcessingRoot Version='1'><StateTable>\n" + states + "\n</StateTable></StateProcessingRoot>\n";
    }

    /// What the merge of an override with these states tells, without its title.
    static std::string Summary(const std::string& states, const std::string& options = "") {
        Put("change.xml", Table(states));
        const std::string told = Run("merge base.xml change.xml -o out.xml --summary " + options).errors;
        return told.substr(told.find('\n', told.find("Feature change, change.xml")) + 1);
    }
};

TEST_F(LanedocMerge, TellsEachKindOfDifference) {
    const std::pair<const char*, const char*> cases[] = {
        {"<State Name='B' BaseState='Y'/>",
         "  ~ StateTable/State[Name=B]/BaseState  (not set) -> \"Y\"\n  1 changed\n"},
        {"<State Name='A' BaseState='Z'/>", "  ~ StateTable/State[Name=A]/BaseState  \"X\" -> \"Z\"\n  1 changed\n"},
        {"<State Name='E' BaseState='A'/>", "  + StateTable/State[Name=E]  2 values\n  1 added\n"},
        {"<State Name='E' PlacementOrder='After' PlacementIndex='B'/>",
         "  + StateTable/State[Name=E]  1 value, behind State[Name=B]\n  1 added\n"},
        {"<State Name='A'><Doc Index='2' MergeAction='Remove'/></State>",
         "  - StateTable/State[Name=A]/Doc[Index=2]  \"two\"\n  1 removed\n"},
        {"<State Name='A' MergeAction='Remove'/>", "  - StateTable/State[Name=A]  4 values\n  1 removed\n"},
        // the fewest that moved, not all that stand elsewhere
        {"<State Name='A' PlacementOrder='Last'/>",
         "  > StateTable/State[Name=A]  moved, first -> behind State[Name=D]\n  1 moved\n"},
        {"<State Name='D' PlacementOrder='First'/>",
         "  > StateTable/State[Name=D]  moved, behind State[Name=C] -> first\n  1 moved\n"},
        {"<State Name='B' MergeAction='Remove'/><State Name='A' PlacementOrder='Last'/>", R"(  StateTable
    > State[Name=A]  moved, first -> behind State[Name=D]
    - State[Name=B]  1 value
  1 removed, 1 moved
)"},
        {"<State Name='A' MergeAction='Replace' PlacementOrder='Before' PlacementIndex='D'><Doc>new</Doc></State>",
         R"(  > StateTable/State[Name=A]  moved, first -> behind State[Name=C]
  * StateTable/State[Name=A]  replaced, 4 values -> 2
    ~ Doc[Index=1]  "one" -> "new"
    - Doc[Index=2]  "two"
    ~ BaseState  "X" -> ""
  2 changed, 1 replaced, 1 removed, 1 moved
)"},
        {"<State Name='C' MergeAction='Clear'><Doc>kept the word</Doc></State>",
         "  + StateTable/State[Name=C]/Doc[Index=1]  \"kept the word\"\n  1 added\n"},
        {"<State Name='B' MergeAction='Remove'/><State Name='B' MergeAction='Add'/>",
         R"(  > StateTable/State[Name=B]  moved, behind State[Name=A] -> behind State[Name=D]
  * StateTable/State[Name=B]  replaced, 1 value -> 1
  1 replaced, 1 moved
)"},
        {"<State Name='A'/>", "  changes nothing\n"},
    };
    for (const auto& [states, told] : cases) {
        EXPECT_EQ(Summary(states), told) << states;
    }
    EXPECT_EQ(Summary(cases[9].first, "--depth 2"),
              R"(  > StateTable/State[Name=A]  moved, first -> behind State[Name=C]
  * StateTable/State[Name=A]  replaced, 4 values -> 2
  2 changed, 1 replaced, 1 removed, 1 moved
)");
    const std::string same(40, 'x');
    Put("long.xml", Table("<State Name='A' BaseState='" + same + "é, then old'/>"));
    Put("longer.xml", Table("<State Name='A' BaseState='" + same + "é, then new'/>"));
    EXPECT_TRUE(Holds(Run("merge long.xml longer.xml -o out.xml --summary").errors,
                      "\"…xxxxxxxé, then old\" -> \"…xxxxxxxé, then new\"\n"));
    EXPECT_EQ(Summary("<State Name='A' Transient='1'><Doc Index='3'>x</Doc></State>", "--depth 2"),
              "  ~ StateTable/State[Name=A]  1 added, 1 changed\n  1 added, 1 changed\n");
}

TEST_F(LanedocMerge, TellsOfReplacedChildrenAndRoots) {
    Put("base.xml", Table("<State Name='A'><PostStateTrigger Index='1'><ActionRef>Go</ActionRef></PostStateTrigger>"
                          "</State>"));
    const char* const replace =
        "<PostStateTrigger MergeAction='Replace'><ActionRef>Stop</ActionRef></PostStateTrigger>";
    EXPECT_EQ(Summary(std::string("<State Name='A'>") + replace + "</State>"),
              R"(  * StateTable/State[Name=A]/PostStateTrigger  replaced, 2 values -> 1
    ~ ActionRef  "Go" -> "Stop"
    ~ Index  "1" -> ""
  2 changed, 1 replaced
)");
    Put("all.xml", "<StateProcessingRoot MergeAction='Replace'/>");
    EXPECT_TRUE(Holds(Run("merge base.xml all.xml --summary").errors, "\n  * the whole document  replaced\n"));
}

TEST_F(LanedocMerge, MergesInOrderAndTellsEachFeature) {
    Put("one.xml", "<StateProcessingRoot Version='2' FeatureID='Own'><StateTable><State Name='New'/>"
                   "<State Name='B' MergeAction='Remove'/></StateTable></StateProcessingRoot>");
    Put("a=b.xml", Table("<State Name='New' PlacementOrder='First'/>"));
    const Result result =
        Run("merge base.xml one.xml a=b.xml X=one.xml --summary --keep-going --on-conflict last - -o - < a=b.xml");
    EXPECT_EQ(result.code, 4);
    EXPECT_EQ(WithoutExcerpts(result.errors), R"(Feature Own, one.xml
  StateTable
    + State[Name=New]  1 value
    - State[Name=B]  1 value
  ~ Version  "1" -> "2"
  1 added, 1 changed, 1 removed
Feature a=b, a=b.xml
  > StateTable/State[Name=New]  moved, behind State[Name=D] -> first
  ~ Version  "2" -> "1"
  1 changed, 1 moved
one.xml:1:81: error: MergeAction="Remove": there is no such entry [missing-target]
Feature X, one.xml
  ~ Version  "1" -> "2"
  ! refused  1:81: StateTable/State[Name=B]: MergeAction="Remove": there is no such entry
  1 changed, 1 refused
Feature stdin, <stdin>
  ~ Version  "2" -> "1"
  1 changed
1 error
)");
    std::size_t at = 0;
    for (const char* const state : {"New", "A", "C", "D"}) {
        at = result.out.find("Name=\"" + std::string(state) + "\"", at);
        EXPECT_NE(at, std::string::npos) << result.out;
    }
    EXPECT_FALSE(Holds(result.out, "Name=\"B\""));
    EXPECT_EQ(Run("merge - one.xml -o - < base.xml").out, Run("merge base.xml one.xml").out);
    EXPECT_EQ(Run("merge base.xml one.xml -o /dev/null").code, 0);
}

TEST_F(LanedocMerge, WarnsOfWhatNoFieldNames) {
    Put("base.xml", R"(<?xml version="1.0"?>
<!-- é --><?tool a?>
<StateProcessingRoot xmlns:x='urn:x' Version="1">
 <!-- > second --> stray
 <RevisionHistory fileName="f" by='me'>text <b>bold</b></RevisionHistory>
 <StateTable><State Nam = "A>" Name='A'><Doc Index="1"><![CDATA[<Colour>]]></Doc><Colour><!-- third --><Dark/></Colour></State>
  <State Name='B'><Colour/></State></StateTable>
</StateProcessingRoot>
)");
    Put("change.xml", "<StateProcessingRoot xmlns:x='urn:x' FeatureID='F'><!-- fine --><StateTable MergeAction='Clear'>"
                      "<State Name='Q' Transiet='1' PlacementOrder='Last'/></StateTable></StateProcessingRoot>");
    const std::string merge = "merge base.xml change.xml -o out.xml";
    EXPECT_EQ(WithoutExcerpts(Run(merge).errors),
              R"(base.xml:2:1: warning: 2 comments will not be in the result, the first is here [lost-comment]
base.xml:2:11: warning: a processing instruction will not be in the result [lost-instruction]
base.xml:3:22: warning: the attribute xmlns:x of StateProcessingRoot is no field and will not be in the result [unknown-attribute]
base.xml:4:20: warning: the text in StateProcessingRoot is no field and will not be in the result [stray-text]
base.xml:5:32: warning: the attribute by of RevisionHistory is no field and will not be in the result [unknown-attribute]
base.xml:5:45: warning: the element b in RevisionHistory is no field and will not be in the result [unknown-element]
base.xml:6:21: warning: the attribute Nam of State is no field and will not be in the result [unknown-attribute]
help: did you mean Name?
base.xml:6:82: warning: the element Colour in State is no field and will not be in the result (2 times, first here) [unknown-element]
change.xml:1:113: warning: no attribute of State is named "Transiet"; it is passed over [unknown-attribute]
help: did you mean Transient?
9 warnings
)");
    const Result quiet = Run(merge + " --quiet");
    EXPECT_EQ(quiet.code, 0);
    EXPECT_EQ(quiet.errors, "");

    std::string wide = "\xFF\xFE"; // UTF-16, with a letter of which one byte would be an escape character
    for (const char character : std::string("<StateProcessingRoot>?<lost/></StateProcessingRoot>")) {
        wide.append(1, character == '?' ? '\x1B' : character).append(1, character == '?' ? '\x01' : '\0');
    }
    Put("wide.xml", wide);
    EXPECT_TRUE(Holds(Run("merge wide.xml change.xml -o out.xml").errors, "wide.xml:1:23: warning: the element lost "));
}

TEST_F(LanedocMerge, TellsEveryMistakeOnceFromTheTop) {
    Put("base.xml",
        "<CommConfig><CommEntry name='Host'><Parameters><Port>1</Port></Parameters></CommEntry></CommConfig>");
    Put("change.xml", R"(<CommConfig Vresion="2"> stray
<CommEntry name="Host" PlacementOrder="Beofre"/>
<CommEntry name="Host" MergeAction="Add"/>
<CommEntry name="Hots" MergeAction="Remove"/>
</CommConfig>)");
    const Result result = Run("merge base.xml change.xml -o out.xml");
    EXPECT_EQ(result.code, 4);
    const std::regex head("change.xml:(\\S+): (\\w+): [^\n]* (\\[[a-z-]+\\])\n");
    std::string told;
    for (std::sregex_iterator at(result.errors.begin(), result.errors.end(), head), end; at != end; ++at) {
        told += at->format("$1 $2 $3\n");
    }
    EXPECT_EQ(told, R"(1:13 warning [unknown-attribute]
1:26 warning [stray-text]
2:24 error [unknown-control-word]
3:1 warning [duplicate-key]
3:1 error [target-exists]
4:1 error [missing-target]
)");
    EXPECT_TRUE(Holds(result.errors, "\n3 errors, 3 warnings\nlanedoc: merge refused, nothing is written: 3 "
                                     "problems; --keep-going"))
        << result.errors;
}

} // namespace
