#include <algorithm>
#include <regex>
#include <sstream>
#include <vector>

#include <nlohmann/json.hpp>

#include "Containers/Examples.h"
#include "LanedocRuns.h"

namespace {

using Json = nlohmann::json;

class LanedocCheck : public LanedocRuns {
protected:
    /// Takes the marks « and » out of a document in ASCII, and tells where what stood between them is: "line:column
    /// length".
    static std::vector<std::string> TakeMarks(std::string& text) {
        constexpr std::string_view opening = "«";
        constexpr std::string_view closing = "»";
        std::vector<std::string> places;
        for (std::size_t at = text.find(opening); at != std::string::npos; at = text.find(opening)) {
            text.erase(at, opening.size());
            const std::size_t end = text.find(closing);
            text.erase(end, closing.size());
            const auto line = std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n') + 1;
            const std::size_t column = at - (text.rfind('\n', at) + 1) + 1;
            places.push_back(std::to_string(line) + ":" + std::to_string(column) + " " + std::to_string(end - at));
        }
        return places;
    }

    static std::vector<std::string> Lines(const std::string& text) {
        std::vector<std::string> lines;
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);) {
            lines.push_back(line);
        }
        return lines;
    }

    /// Checks a marked document: one message for each mark, which underlines what is marked, in their order and with
    /// these codes and helps.
    static void CheckMarked(std::string text, const std::string& options, const std::vector<std::string>& told) {
        SCOPED_TRACE(text);
        std::vector<std::string> expected = TakeMarks(text);
        ASSERT_EQ(expected.size(), told.size());
        std::transform(expected.begin(), expected.end(), told.begin(), expected.begin(),
                       [](const std::string& place, const std::string& code) { return place + " " + code; });
        Put("case.xml", text);
        const Result result = Run("check " + options + " case.xml");
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.errors, "");
        const std::regex message("case\\.xml:(\\d+:\\d+): [^\n]*\\[([a-z-]+)\\]\n"
                                 "(?:[^\n]*\n +\\| +(\\^~*)\n)?(?:help: ([^\n]*))?");
        std::vector<std::string> found;
        for (std::sregex_iterator at(result.out.begin(), result.out.end(), message), end; at != end; ++at) {
            found.push_back(at->str(1) + " " + std::to_string(at->length(3)) + " " + at->str(2) +
                            (at->length(4) == 0 ? "" : ", " + at->str(4)));
        }
        EXPECT_EQ(found, expected) << result.out;
    }
};

TEST_F(LanedocCheck, FindsEveryKindOfMistakeOnceAtItsPlace) {
    CheckMarked(R"(<StateProcessingRoot><StateTable>
  «<Stat>»<State/></Stat>
  <State Name='A' «Transiet='1'»> «lost» <Doc>«<b>»c</b></Doc> too </State>
  «<State Name='A'/>»
  «<State Transient='1'/>»
  <State Name='B' «Transient='maybe'» «MergeAction='Remove'»/>
  <State Name='C'><PreStateTrigger><ActionData><Data Name='d'/></ActionData></PreStateTrigger>
  «<PreStateTrigger>»<ActionData>«<Data Name='d'/>»</ActionData></PreStateTrigger></State>
</StateTable></StateProcessingRoot>)",
                "",
                {"unknown-element, did you mean <State>?", "unknown-attribute, did you mean Transient?", "stray-text",
                 "unknown-element", "duplicate-key", "missing-key", "not-a-bool", "misplaced-control-word",
                 "repeated-value", "duplicate-key"});
    CheckMarked(
        R"(<CaptureConfig><Files/>
«<Files/>»
<Files/>«<MaxTransactions>»1O</MaxTransactions>«<WriteBufferSize>»9999999999</WriteBufferSize>
<Rules><Rule><SubRule>«<CaptureLevel>»CAPTURE_LEVEL_EROR</CaptureLevel></SubRule></Rule></Rules></CaptureConfig>)",
        "",
        {"repeated-value", "not-a-number", "number-out-of-range",
         R"(unknown-word, did you mean "CAPTURE_LEVEL_ERROR", "CAPTURE_LEVEL_DEBUG" or "CAPTURE_LEVEL_NORMAL"?)"});
    CheckMarked(R"(<StateProcessingRoot><StateTable>
  <State Name='A' «PlacementOrder='Frist'»>«<Dog/>»</State>
  <State Name='B' MergeAction='Remove' «PlacementOrder='First'»/>
</StateTable></StateProcessingRoot>)",
                "--override",
                {"unknown-control-word, did you mean PlacementOrder=\"First\"?", "unknown-element, did you mean <Doc>?",
                 "misplaced-control-word"});
}

TEST_F(LanedocCheck, FollowsTheNamesThatAClassLeavesNoDoubtAbout) {
    const std::string lane = R"(dangling-name, did you mean "Lane"?)";
    const std::vector<std::pair<std::string, std::vector<std::string>>> cases = {
        {R"(<StateProcessingRoot><StateTable «InitialState="Idel"»><State Name="Idle"/>
<State Name="b" BaseState="Idle"/><State Name="c" «BaseState="x"»/><State Name="d" BaseState=""/>
</StateTable></StateProcessingRoot>)",
         {R"(dangling-name, did you mean "Idle"?)", "dangling-name"}},
        {R"(<ConfigDefRoot><ConfigurationDefinition><ConfigDef Name="Lane">
<ValidationDef><InValidOptionRefList><InValidOptionRef Value="1"><TestInValidOption>«<OptionName>»Lan</OptionName>
</TestInValidOption></InValidOptionRef></InValidOptionRefList></ValidationDef>
<LinkedOptionList><LinkedOption Index="1">«<OptionName>»Lan</OptionName></LinkedOption></LinkedOptionList>
<Constraint Type="a"><ReferenceListConstraint><ReferenceList><Reference>«<OptionName>»Lan</OptionName></Reference>
<Reference><OptionName>Lane</OptionName></Reference></ReferenceList></ReferenceListConstraint>
<XMLDataListDef>«<OptionName>»Lan</OptionName></XMLDataListDef></Constraint></ConfigDef></ConfigurationDefinition>
<ConfigurationViews><ConfigView Name="v"><ConfigOption «Name="Lan"»/></ConfigView></ConfigurationViews>
<ConfigLevelViewMap><ConfigLevelView Level="l"><ViewList><View name="v"/><View «name="Lan"»/></ViewList>
</ConfigLevelView></ConfigLevelViewMap></ConfigDefRoot>)",
         {lane, lane, lane, lane, lane, "dangling-name"}},
        {R"(<StructureTransformDef><StructureDataMap><StructurePacketDef Name="Item"/></StructureDataMap>
<StructureReferenceMap><ReferenceMap Index="1"><StructurePacket>Item</StructurePacket></ReferenceMap>
<ReferenceMap Index="2">«<StructurePacket>»Itm</StructurePacket></ReferenceMap></StructureReferenceMap>
</StructureTransformDef>)",
         {R"(dangling-name, did you mean "Item"?)"}},
        {R"(<CaptureConfig><Files><File><Name>lane.log</Name><Output>Lane</Output></File></Files><Rules><Rule>
<SubRule><Output>Lane</Output></SubRule><SubRule><Output>lane.log</Output></SubRule>
<SubRule>«<Output>»lone</Output></SubRule></Rule></Rules></CaptureConfig>)",
         {lane}},
        {R"(<AudioLookupConfig><CurrencyAudioMap language="fr"><CurrencyAudioKeys currencyCode="EUR">
<VoiceCurrency index="1"><Key>EURO</Key></VoiceCurrency><VoiceCurrency index="2">«<Key>»EUROS</Key></VoiceCurrency>
</CurrencyAudioKeys></CurrencyAudioMap><AudioKeyMap language="en"><AudioLookup key="EURO"><ExpandPhrase>
<Key>EURO</Key>
«<Key>»CENT</Key></ExpandPhrase></AudioLookup></AudioKeyMap></AudioLookupConfig>)",
         {R"(dangling-name, did you mean "EURO"?)", "dangling-name"}},
    };
    for (const auto& [text, told] : cases) {
        CheckMarked(text, "", told);
        // An override need not hold what it names.
        EXPECT_EQ(Run("check --override case.xml").out, "");
    }
}

TEST_F(LanedocCheck, FindsNothingInTheExamples) {
    std::string documents, overrides;
    for (const auto& [root, example] : Examples()) {
        documents += " " + Framework::Quoted(example.document);
        for (const std::filesystem::path& path : example.overrides) {
            overrides += " " + Framework::Quoted(path);
        }
    }
    for (const std::string& files : {documents, " --override" + overrides}) {
        const Result result = Run("check" + files);
        EXPECT_EQ(result.code, 0);
        EXPECT_EQ(result.out + result.errors, "");
    }
}

TEST_F(LanedocCheck, ChecksAllFilesAlsoWhenOneCannotBeRead) {
    Put("broken.xml", "<StateProcessingRoot>\n  <StateTable>\n</StateProcessingRoot>\n");
    Put("root.xml", "\n <StateProcesingRoot/>\n");
    Put("slip.xml", "<StateProcessingRoot Versoin='1'/>\n");
    const std::string files = " broken.xml missing.xml root.xml - slip.xml <slip.xml";
    const Result text = Run("check" + files);
    EXPECT_EQ(text.code, 3);
    EXPECT_TRUE(text.out.starts_with(
        R"(broken.xml:3:3: error: found </StateProcessingRoot>, expected </StateTable>, opened at 2:3 [not-well-formed]
    3 | </StateProcessingRoot>
      |   ^
missing.xml: error: cannot open: No such file or directory [not-readable]
root.xml:2:2: error: no document has the root element StateProcesingRoot [unknown-root]
    2 |  <StateProcesingRoot/>
      |  ^~~~~~~~~~~~~~~~~~~
help: did you mean "StateProcessingRoot"?
<stdin>:1:22: error: )"))
        << text.out;
    EXPECT_TRUE(text.out.ends_with("\n5 errors\n")) << text.out;

    // JSON says the same, whatever is shown of it.
    const Result json = Run("check --format json --max-errors 1" + files);
    EXPECT_EQ(json.code, 3);
    const Json report = Json::parse(json.out);
    EXPECT_EQ(report.at("errors"), 5);
    std::string places;
    for (const Json& message : report.at("messages")) {
        places += message.at("file").get<std::string>() + ':' + message.at("line").dump() + ':' +
                  message.at("column").dump() + ' ';
    }
    EXPECT_EQ(places, "broken.xml:3:3 missing.xml:null:null root.xml:2:2 <stdin>:1:22 slip.xml:1:22 ");

    EXPECT_EQ(Run("check - -").code, 2);
}

TEST_F(LanedocCheck, ShowsAsManyMessagesAsAsked) {
    std::string text = "<StateProcessingRoot>\n<StateTable InitialState='x'>\n";
    for (int i = 0; i < 25; ++i) {
        text += "<Stat/>\n";
    }
    Put("many.xml", text + "</StateTable>\n</StateProcessingRoot>\n");
    const std::vector<std::tuple<std::string, std::size_t, std::string>> cases = {
        {"", 21, "25 errors, 1 warning (5 not shown; --max-errors 0 shows all)"},
        {" --max-errors 2", 3, "25 errors, 1 warning (23 not shown; --max-errors 0 shows all)"},
        {" --max-errors 0", 26, "25 errors, 1 warning"},
    };
    for (const auto& [options, shown, count] : cases) {
        const std::vector<std::string> lines = Lines(Run("check many.xml" + options).out);
        EXPECT_EQ(static_cast<std::size_t>(std::count_if(lines.begin(), lines.end(),
                                                         [](const std::string& line) { return line.ends_with(']'); })),
                  shown);
        EXPECT_EQ(lines.back(), count);
    }
}

TEST_F(LanedocCheck, UnderlinesInEveryEncodingAndLine) {
    // Tabs and wide letters in front of the place, and lines that end as on other systems.
    const std::string root = "<StateProcessingRoot a='1'>\r\r\n\t<StateTable Name=\"\t\xC3\xA4\" Nam=\"1\"/>\r"
                             "</StateProcessingRoot>";
    const std::string excerpt = "\n    3 |     <StateTable Name=\"  \xC3\xA4\" Nam=\"1\"/>\n"
                                "      |                            ^~~~~~~\n";
    for (const std::string encoding : {"UTF-8", "UTF-16", "UTF-32BE", "ISO-8859-1", "IBM273"}) {
        SCOPED_TRACE(encoding);
        Put("utf8.xml", "<?xml version='1.0' encoding='" + encoding + "'?>" + root);
        ASSERT_EQ(std::system(("iconv -f UTF-8 -t " + encoding + " utf8.xml >case.xml").c_str()), 0);
        const std::string out = Run("check case.xml").out;
        EXPECT_TRUE(Holds(out, "\n    1 | <?xml version='1.0' ")) << out;
        EXPECT_TRUE(Holds(out, "\ncase.xml:3:24: error: ") && Holds(out, excerpt)) << out;
    }
    const std::string wide = "日本e\xCC\x81";
    Put("case.xml", "<StateProcessingRoot><StateTable Name='" + wide + "' Nam='1'/></StateProcessingRoot>");
    EXPECT_TRUE(Holds(Run("check case.xml").out, "Name='" + wide + "' Nam='1'/></StateProcessingRoot>\n      | " +
                                                     std::string(46, ' ') + "^~~~~~~\n"));
    Put("case.xml",
        "<StateProcessingRoot><StateTable Name='" + std::string(5000, 'n') + "' Nam='1'/></StateProcessingRoot>");
    EXPECT_TRUE(Holds(Run("check case.xml").out, "    1 | …" + std::string(48, 'n') +
                                                     "' Nam='1'/></StateProcessingRoot>\n      | " +
                                                     std::string(51, ' ') + "^~~~~~~\n"));
}

TEST_F(LanedocCheck, ExplainsTheCodesThatTheErrorsPageLists) {
    std::string listed;
    for (const std::string& line : Lines(Get(FRAMEWORK_DOCS "/Errors.md"))) {
        for (const char* const severity : {" | error | ", " | warning | "}) {
            if (const std::size_t at = line.find(severity); at != std::string::npos && line.starts_with("| `")) {
                listed += line.substr(3, at - 4) + '\n' + line.substr(at + 3, line.size() - at - 5) + '\n';
            }
        }
    }
    std::string explained;
    for (const std::string& line : Lines(Run("help codes").out)) {
        std::istringstream words(line);
        std::string code;
        std::string severity;
        std::string sentence;
        std::getline(words >> code >> severity >> std::ws, sentence);
        explained += code + '\n' + severity + " | " + sentence + '\n';
    }
    EXPECT_EQ(listed, explained);
    EXPECT_EQ(Run("help merge").out, Run("merge --help").out);
    EXPECT_EQ(Run("help").out, Run("--help").out);
    EXPECT_TRUE(Holds(Run("help merg").errors, "did you mean merge?"));
}

} // namespace
