#include <algorithm>
#include <sstream>
#include <vector>

#include <nlohmann/json.hpp>

#include "Containers/Examples.h"
#include "LanedocRuns.h"

namespace {

using Json = nlohmann::json;

class LanedocCheck : public LanedocRuns {
protected:
    /// A place that a message must name and underline.
    struct Mark {
        std::size_t line;
        std::size_t column;
        std::string marked;
    };

    /// Takes the marks « and » out of a document, and tells what stood between them.
    static std::vector<Mark> TakeMarks(std::string& text) {
        constexpr std::string_view opening = "«";
        constexpr std::string_view closing = "»";
        std::vector<Mark> marks;
        for (std::size_t at = text.find(opening); at != std::string::npos; at = text.find(opening)) {
            text.erase(at, opening.size());
            const std::size_t end = text.find(closing);
            text.erase(end, closing.size());
            const std::size_t lineStart = text.rfind('\n', at) + 1; // 0 in the first line
            const std::string before = text.substr(lineStart, at - lineStart);
            const auto isCharacter = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; };
            marks.push_back(
                {static_cast<std::size_t>(std::count(text.begin(), text.begin() + static_cast<long>(at), '\n')) + 1,
                 static_cast<std::size_t>(std::count_if(before.begin(), before.end(), isCharacter)) + 1,
                 text.substr(at, end - at)});
        }
        return marks;
    }

    static std::vector<std::string> Lines(const std::string& text) {
        std::vector<std::string> lines;
        std::istringstream stream(text);
        for (std::string line; std::getline(stream, line);) {
            lines.push_back(line);
        }
        return lines;
    }

    /// What the line of carets underlines in the line above it; both in ASCII.
    static std::string Underlined(const std::string& line, const std::string& carets) {
        const std::size_t at = carets.find('^');
        return at == std::string::npos || at > line.size() ? "" : line.substr(at, carets.size() - at);
    }

    /// Checks a marked document: one message for each mark, at its place, and no other. Returns the code of the last.
    static std::string CheckMarked(std::string text, const std::string& options, const std::string& help) {
        SCOPED_TRACE(text);
        const std::vector<Mark> marks = TakeMarks(text);
        Put("case.xml", text);
        const Result result = Run("check " + options + " case.xml");
        EXPECT_EQ(result.code, 1) << result.errors;
        EXPECT_EQ(result.errors, "");
        const std::vector<std::string> lines = Lines(result.out);
        std::string code;
        std::size_t found = 0;
        for (std::size_t i = 0; i + 2 < lines.size(); ++i) {
            if (!lines[i].ends_with("]") || !lines[i].starts_with("case.xml:")) {
                continue;
            }
            if (found == marks.size()) {
                ADD_FAILURE() << "one message too many: " << lines[i];
                break;
            }
            const Mark& mark = marks[found++];
            const std::string place =
                "case.xml:" + std::to_string(mark.line) + ":" + std::to_string(mark.column) + ": ";
            EXPECT_TRUE(lines[i].starts_with(place)) << lines[i];
            EXPECT_EQ(Underlined(lines[i + 1], lines[i + 2]), mark.marked) << result.out;
            code = lines[i].substr(lines[i].rfind('[') + 1);
            code.pop_back();
        }
        EXPECT_EQ(found, marks.size()) << result.out;
        EXPECT_EQ(Holds(result.out, "help: "), !help.empty()) << result.out;
        EXPECT_TRUE(help.empty() || Holds(result.out, "\nhelp: " + help)) << result.out;
        return code;
    }
};

TEST_F(LanedocCheck, FindsEveryKindOfMistakeOnceAtItsPlace) {
    struct Case {
        std::string text;
        const char* code;
        const char* help;
        const char* options = "";
    };
    const auto state = [](const std::string& below) {
        return "<StateProcessingRoot>\n <StateTable>\n  " + below + "\n </StateTable>\n</StateProcessingRoot>\n";
    };
    const std::vector<Case> cases = {
        {state("«<Stat>»<State/></Stat>"), "unknown-element", R"(did you mean <State>?)"},
        {state("<State Name='A'><Doc>«<b>»c</b></Doc></State>"), "unknown-element", ""},
        {state("<State Name='A' «Transiet='1'»/>"), "unknown-attribute", R"(did you mean Transient?)"},
        {state("<State Name='A'> «lost» <Doc/> too </State>"), "stray-text", ""},
        {state("<State Name='A'/>«<State Name='A'/>»"), "duplicate-key", ""},
        {state("<State Name='A'><PreStateTrigger><ActionData><Data Name='d'/></ActionData></PreStateTrigger>\n"
               "«<PreStateTrigger>»<ActionData>«<Data Name='d'/>»</ActionData></PreStateTrigger></State>"),
         "duplicate-key", ""},
        {state("«<State Transient='1'/>»"), "missing-key", ""},
        {"<CaptureConfig><Files/>\n«<Files/>»\n<Files/></CaptureConfig>", "repeated-value", ""},
        {"<CaptureConfig>«<MaxTransactions>»1O</MaxTransactions></CaptureConfig>", "not-a-number", ""},
        {"<CaptureConfig>«<MaxTransactions>»9999999999</MaxTransactions></CaptureConfig>", "number-out-of-range", ""},
        {state("<State Name='A' «Transient='maybe'»/>"), "not-a-bool", ""},
        {"<CaptureConfig><Rules><Rule><SubRule>«<CaptureLevel>»CAPTURE_LEVEL_EROR</CaptureLevel></SubRule></Rule>"
         "</Rules></CaptureConfig>",
         "unknown-word", R"(did you mean "CAPTURE_LEVEL_ERROR")"},
        {state("<State Name='A' «MergeAction='Remove'»/>"), "misplaced-control-word", ""},
        {state("<State Name='A' «PlacementOrder='Frist'»/>"), "unknown-control-word",
         R"(did you mean PlacementOrder="First"?)", "--override"},
        {state("<State Name='A' MergeAction='Remove' «PlacementOrder='First'»/>"), "misplaced-control-word", "",
         "--override"},
        {state("<State Name='A'>«<Dog/>»</State>"), "unknown-element", R"(did you mean <Doc>?)", "--override"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(CheckMarked(c.text, c.options, c.help), c.code);
    }
}

TEST_F(LanedocCheck, FollowsTheNamesThatAClassLeavesNoDoubtAbout) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {R"(<StateProcessingRoot><StateTable «InitialState="Idel"»><State Name="Idle"/>
<State Name="b" BaseState="Idle"/><State Name="c" «BaseState="x"»/><State Name="d" BaseState=""/>
</StateTable></StateProcessingRoot>)",
         R"(did you mean "Idle"?)"},
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
         R"(did you mean "Lane"?)"},
        {R"(<StructureTransformDef><StructureDataMap><StructurePacketDef Name="Item"/></StructureDataMap>
<StructureReferenceMap><ReferenceMap Index="1"><StructurePacket>Item</StructurePacket></ReferenceMap>
<ReferenceMap Index="2">«<StructurePacket>»Itm</StructurePacket></ReferenceMap></StructureReferenceMap>
</StructureTransformDef>)",
         R"(did you mean "Item"?)"},
        {R"(<CaptureConfig><Files><File><Name>lane.log</Name><Output>Lane</Output></File></Files><Rules><Rule>
<SubRule><Output>Lane</Output></SubRule><SubRule><Output>lane.log</Output></SubRule>
<SubRule>«<Output>»lone</Output></SubRule></Rule></Rules></CaptureConfig>)",
         R"(did you mean "Lane"?)"},
        {R"(<AudioLookupConfig><CurrencyAudioMap language="fr"><CurrencyAudioKeys currencyCode="EUR">
<VoiceCurrency index="1"><Key>EURO</Key></VoiceCurrency><VoiceCurrency index="2">«<Key>»EUROS</Key></VoiceCurrency>
</CurrencyAudioKeys></CurrencyAudioMap><AudioKeyMap language="en"><AudioLookup key="EURO"><ExpandPhrase>
<Key>EURO</Key>
«<Key>»CENT</Key></ExpandPhrase></AudioLookup></AudioKeyMap></AudioLookupConfig>)",
         R"(did you mean "EURO"?)"},
    };
    for (const auto& [text, help] : cases) {
        EXPECT_EQ(CheckMarked(text, "", help), "dangling-name");
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
