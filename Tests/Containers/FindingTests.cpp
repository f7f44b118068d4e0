// What is wrong with an override or a document: each mistake is told once, at its place, with the name that was meant.

#include "Commands.h"
#include "Containers/EveryClass.h"
#include "Containers/Examples.h"
#include "Containers/OverrideWriter.h"

#include "Framework/DocumentCheck.h"
#include "Framework/MergeJournal.h"
#include "Framework/NearestNames.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/TextPlaces.h"
#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

using Code = FindingCode;

/// Who tells of a mistake besides a journal and a strict merge.
enum Teller : unsigned { Nobody = 0, Check = 1, Log = 2, Both = 3 };

/// The texts of places stand once in the override, up to there.
struct Mistake {
    Code code;
    const char* at;
    unsigned tellers = Check;
    const char* near = "";
    const char* note = ""; ///< the other place
};

struct Scenario {
    CatalogClass type;
    std::string base;
    std::string xml; ///< the override
    std::vector<Mistake> mistakes;
    bool isPossible = true; ///< the merge goes on after what it refuses
};

std::vector<Scenario> Scenarios() {
    const auto type = [](const char* name) { return ContainerCatalog::FindClass(name); };
    std::string states;
    for (const char* const name : {"Attract", "Scan", "Coupon", "Bag", "Pay", "Help", "Survey"}) {
        states += "<State Name='" + std::string(name) + "'/>";
    }
    const std::string table =
        "<StateProcessingRoot><StateTable Name='T'>" + states + "</StateTable></StateProcessingRoot>";
    return {
        {type("StateProcessingRootType"),
         table,
         "<StateProcessingRoot Versoin='2'>\n"
         "<RevisionHistory fileName='\xC3\xA9'>1</RevisionHistory><RevisoinHistory/>\n"
         "<StateTable InitialStat='Scan'><!-- \xE3\x81\x82 --><Stat Name='Attract'/>\n"
         "  <State Name='Attract' MergeAction='Clera'/>\n"
         "  <State Name='Scan' Transient='perhaps'/>\n"
         "  <State Name='Scna' MergeAction='Remove'/>\n"
         "  <State Name='Coupon'\n    MergeAction='Add'/>\n"
         "  <State Name='Bag' PlacementOrder='befor'/>\n"
         "  <State Name='Pay' PlacementOrder='Before' PlacementIndex='Coupn'/>\n"
         "  <State BaseState='x'/>\n"
         "  <State Name='Help'><PreStateTrigger><ActionRef>first</ActionRef>\n"
         "    <ActionRef>second</ActionRef></PreStateTrigger>\n"
         "    <PostStateTrigger><ActionRef MergeAction='Replace'>r</ActionRef></PostStateTrigger></State>\n"
         "  <State Name='Survey' MergeAction='Remove' PlacementOrder='First'/>\n"
         "  <State Name='Help' BaseState='y'/>\n"
         "  <State Name='New'><StateTriggers><Stranger/></StateTriggers>\n"
         "    <StateTriggers><StateAction Trigger='t'><ActionListCached>maybe</ActionListCached></StateAction>\n"
         "      <StateAction Trigger='t' Transient='true'/></StateTriggers></State>\n"
         "  some words</StateTable></StateProcessingRoot>\n",
         {
             {Code::UnknownAttribute, "Versoin", Check, "Version"},
             {Code::UnknownElement, "<RevisoinHistory", Check, "RevisionHistory"},
             {Code::UnknownAttribute, "InitialStat=", Check, "InitialState"},
             {Code::UnknownElement, "<Stat ", Check, "State"},
             {Code::UnknownControlWord, "MergeAction='Clera'", Both, "Clear"},
             {Code::NotABool, "Transient='perhaps'"},
             {Code::MissingTarget, "<State Name='Scna'", Log, "Scan"},
             {Code::TargetExists, "<State Name='Coupon'", Log},
             {Code::UnknownControlWord, "PlacementOrder='befor'", Both, "Before"},
             {Code::MissingNeighbour, "PlacementIndex='Coupn'", Log, "Coupon"},
             {Code::MissingKey, "<State BaseState='x'", Both},
             {Code::RepeatedValue, "<ActionRef>second", Check, "", "<ActionRef>first"},
             {Code::MisplacedControlWord, "MergeAction='Replace'", Both},
             {Code::MisplacedControlWord, "PlacementOrder='First'", Both},
             {Code::DuplicateKey, "<State Name='Help' Base", Check, "", "<State Name='Help'>"},
             {Code::UnknownElement, "<Stranger/>"},
             {Code::RepeatedValue, "<StateTriggers><StateAction", Check, "", "<StateTriggers><Stranger"},
             {Code::NotABool, "<ActionListCached>maybe"},
             {Code::DuplicateKey, "<StateAction Trigger='t' Tr", Both, "", "<StateAction Trigger='t'>"},
             {Code::StrayText, "some words"},
         }},
        {type("ItemInformationType"),
         "<ItemInformation/>",
         "<ItemInformation>\n"
         "<LaneType>LTYPE_KIOKS</LaneType><ItemPrice>cheap</ItemPrice>\n"
         "<ItemQuantity> 7 </ItemQuantity><MeasuredWeight>99999999999</MeasuredWeight>\n"
         "<MeasuredHeight>2.5</MeasuredHeight><NofPrice>-2.5e3</NofPrice><NofMod1></NofMod1>\n"
         "<PassAround>YES</PassAround><LongItem><![CDATA[not]]></LongItem><ItemDesc>7</ItemDesc></ItemInformation>",
         {
             {Code::UnknownWord, "<LaneType", Check, "LTYPE_KIOSK"},
             {Code::NotANumber, "<ItemPrice"},
             {Code::NumberOutOfRange, "<MeasuredWeight"},
             {Code::NotANumber, "<MeasuredHeight"},
             {Code::NotANumber, "<NofMod1"},
             {Code::NotABool, "<LongItem"},
         }},
        {type("StateProcessingRootType"),
         table,
         "\n<StateProcessingRoot MergeAction='Remove' Versoin='2'/>",
         {{Code::MisplacedControlWord, "MergeAction", Both}},
         false},
    };
}

std::string Shown(Code code, const Framework::Place& place, const Framework::Place& note) {
    return std::string(FindingName(code)) + " " + std::to_string(place.line) + ":" + std::to_string(place.column) +
           " note " + std::to_string(note.line) + ":" + std::to_string(note.column);
}

Framework::Place PlaceOf(const DocumentPlace& place) {
    return {place.Line, place.Column};
}

Framework::Place PlaceOf(const std::string& xml, const std::string& text) {
    const std::size_t at = xml.find(text);
    EXPECT_EQ(xml.find(text, at + 1), text.empty() ? 1 : std::string::npos) << text;
    return text.empty() ? Framework::Place() : Framework::PlaceIn(xml, at);
}

/// The mistakes that one of those tells of; all of them without.
std::vector<Mistake> ToldBy(const Scenario& scenario, unsigned tellers) {
    std::vector<Mistake> mistakes;
    std::copy_if(scenario.mistakes.begin(), scenario.mistakes.end(), std::back_inserter(mistakes),
                 [tellers](const Mistake& mistake) { return tellers == Nobody || (mistake.tellers & tellers) != 0; });
    return mistakes;
}

void ExpectFindings(const std::vector<Finding>& found, const Scenario& scenario, const std::vector<Mistake>& mistakes) {
    std::multiset<std::string> expected, told;
    std::map<std::string, std::string> near;
    for (const Mistake& mistake : mistakes) {
        const std::string shown =
            Shown(mistake.code, PlaceOf(scenario.xml, mistake.at), PlaceOf(scenario.xml, mistake.note));
        expected.insert(shown);
        near[shown] = mistake.near;
    }
    for (const Finding& finding : found) {
        const std::string shown = Shown(finding.Code, PlaceOf(finding.Place),
                                        finding.Notes.empty() ? Framework::Place() : PlaceOf(finding.Notes[0].Place));
        told.insert(shown);
        EXPECT_FALSE(finding.Text.empty()) << shown;
        EXPECT_LE(finding.Near.size(), 3U) << shown;
        if (!near[shown].empty()) {
            ASSERT_FALSE(finding.Near.empty()) << shown;
            EXPECT_EQ(finding.Near[0], near[shown]) << shown;
        }
    }
    EXPECT_EQ(told, expected);
}

std::vector<Finding> ProblemsIn(const MergeJournal& journal) {
    std::vector<Finding> found;
    for (const std::size_t number : journal.Problems()) {
        found.push_back(*journal.At(number).Problem);
    }
    return found;
}

/// The lines that the override log is told of, against those of mistakes.
void ExpectLogged(const IssueRecorder& log, const Scenario& scenario, const std::vector<Mistake>& mistakes) {
    std::multiset<std::size_t> told, expected;
    for (const OverrideIssue& issue : log.issues) {
        told.insert(issue.Line);
    }
    for (const Mistake& mistake : mistakes) {
        expected.insert(PlaceOf(scenario.xml, mistake.at).line);
    }
    EXPECT_EQ(told, expected);
}

class StrictScope {
public:
    StrictScope() { MergeJournal::SetStrict(true); }
    ~StrictScope() { MergeJournal::SetStrict(false); }
    StrictScope(const StrictScope&) = delete;
    StrictScope& operator=(const StrictScope&) = delete;
};

TEST(Findings, EveryMistakeOfAnOverrideIsToldOnceAtItsPlace) {
    for (const Scenario& scenario : Scenarios()) {
        SCOPED_TRACE(scenario.xml.substr(0, scenario.xml.find('\n')));
        const auto merge = [&] {
            const auto object = scenario.type.Create(false);
            EXPECT_TRUE(LoadText(*object, scenario.base));
            EXPECT_EQ(MergeText(*object, "Slips", scenario.xml), scenario.isPossible);
            return Samples::Lines(*object);
        };
        IssueRecorder ofPlain;
        const std::vector<std::string> merged = merge();
        ExpectLogged(ofPlain, scenario, ToldBy(scenario, Log));
        IssueRecorder ofJournal;
        MergeJournal journal;
        {
            const MergeJournal::Recording recording(journal);
            EXPECT_EQ(merge(), merged);
        }
        ExpectFindings(ProblemsIn(journal), scenario, ToldBy(scenario, Nobody));
        ExpectLogged(ofJournal, scenario, ToldBy(scenario, Nobody));
        IssueRecorder ofStrict;
        {
            const StrictScope strict;
            EXPECT_TRUE(MergeJournal::IsStrict());
            EXPECT_EQ(merge(), merged);
        }
        ExpectLogged(ofStrict, scenario, ToldBy(scenario, Nobody));
    }
}

TEST(Findings, CheckTellsWhatCanBeSaidOfAFileAlone) {
    for (const Scenario& scenario : Scenarios()) {
        SCOPED_TRACE(scenario.xml.substr(0, scenario.xml.find('\n')));
        XMLDataWrapper document;
        ASSERT_TRUE(document.LoadXMLText(scenario.xml, true));
        const std::vector<Finding> found = DocumentCheck::Run(document, scenario.type, DocumentCheck::Kind::Override);
        if (scenario.isPossible) { // the check goes on where the merge ends
            ExpectFindings(found, scenario, ToldBy(scenario, Check));
        } else {
            EXPECT_EQ(found.size(), 2U);
        }
        EXPECT_TRUE(std::is_sorted(found.begin(), found.end(), [](const Finding& one, const Finding& other) {
            return std::pair(one.Place.Line, one.Place.Column) < std::pair(other.Place.Line, other.Place.Column);
        }));
        if (scenario.xml.find("MergeAction") == std::string::npos) {
            ExpectFindings(DocumentCheck::Run(document, scenario.type), scenario, ToldBy(scenario, Check));
        }
    }
    XMLDataWrapper document;
    EXPECT_TRUE(DocumentCheck::Run(document, ContainerCatalog::FindRoot("LoadConfig")).empty());
    ASSERT_TRUE(document.LoadXMLText("<P><A b='1'/>\n<ChildThread c='2'/></P>", false));
    ASSERT_NE(document.SelectNode("ChildThread", false), nullptr);
    const std::vector<Finding> found = DocumentCheck::Run(document, ContainerCatalog::FindClass("ChildThreadType"));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].Place.Line, 2U);
}

/// Whatever is wrong: the journal and the log are told once, and the check finds in the file what can be seen there.
TEST(Findings, AreToldOnceForEveryClassAndAgreeWithTheCheck) {
    const std::set<Code> ofMergesAlone = {Code::MissingTarget, Code::TargetExists, Code::MissingNeighbour,
                                          Code::MisplacedControlWord,
                                          Code::DuplicateKey}; // the last two may be below something new
    ForEveryClass([&ofMergesAlone](CatalogClass type) {
        for (unsigned seed = 1; seed <= 8; ++seed) {
            Samples::Random random(seed);
            const std::string xml =
                OverrideWriter(random).Write(Samples::Make(type, std::string(type.ElementName()), random));
            const auto object = MakeLoaded(type, seed);
            MergeJournal journal;
            IssueRecorder log;
            {
                const MergeJournal::Recording recording(journal);
                MergeText(*object, "Slips", xml);
            }
            XMLDataWrapper document;
            ASSERT_TRUE(document.LoadXMLText(xml, true));
            std::set<std::string> inFile, told;
            for (const Finding& finding : DocumentCheck::Run(document, type, DocumentCheck::Kind::Override)) {
                EXPECT_TRUE(inFile.insert(Shown(finding.Code, PlaceOf(finding.Place), {})).second) << finding.Text;
            }
            for (const Finding& finding : ProblemsIn(journal)) {
                const std::string shown = Shown(finding.Code, PlaceOf(finding.Place), {});
                EXPECT_TRUE(told.insert(shown).second) << shown << " twice: " << finding.Text;
                EXPECT_TRUE(ofMergesAlone.contains(finding.Code) || inFile.contains(shown)) << shown;
            }
            EXPECT_EQ(log.issues.size(), told.size());
            ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed << "\n" << xml;
        }
    });
}

TEST(Findings, ExamplesHaveNone) {
    const auto check = [](CatalogClass type, const std::filesystem::path& path, DocumentCheck::Kind kind) {
        XMLDataWrapper document;
        EXPECT_TRUE(document.LoadXMLFile(path.c_str(), true)) << document.GetLastError();
        return DocumentCheck::Run(document, type, kind);
    };
    ForEveryExample([&check](CatalogClass type, const Example& example) {
        EXPECT_TRUE(check(type, example.document, DocumentCheck::Kind::Document).empty());
        const auto object = type.Create(false);
        ASSERT_TRUE(object->LoadFromFile(nullptr, example.document.c_str(), false));
        MergeJournal journal;
        const MergeJournal::Recording recording(journal);
        for (const std::filesystem::path& path : example.overrides) {
            EXPECT_TRUE(check(type, path, DocumentCheck::Kind::Override).empty()) << path;
            ASSERT_TRUE(object->MergeFromFile(nullptr, path.c_str()));
        }
        EXPECT_TRUE(journal.Problems().empty()) << journal.At(journal.Problems().front()).Path;
    });
}

TEST(Findings, ExampleOfMistakesHasThemAll) {
    const std::filesystem::path folder = FRAMEWORK_EXAMPLES;
    StateProcessingRootType root(false);
    ASSERT_TRUE(root.LoadFromFile(nullptr, (folder / "StateProcessingRoot.xml").c_str(), false));
    const std::filesystem::path path = folder / "StateProcessingRoot.mistakes.xml";
    MergeJournal journal;
    const IssueRecorder log;
    {
        const MergeJournal::Recording recording(journal);
        ASSERT_TRUE(root.MergeFromFile(nullptr, path.c_str()));
    }
    std::multiset<Code> codes;
    for (const Finding& finding : ProblemsIn(journal)) {
        codes.insert(finding.Code);
        EXPECT_EQ(finding.Place.File, path.string());
    }
    const std::multiset<Code> all = {Code::UnknownAttribute, Code::UnknownElement,   Code::UnknownControlWord,
                                     Code::MissingNeighbour, Code::MissingNeighbour, Code::MissingTarget,
                                     Code::TargetExists,     Code::MissingKey,       Code::MisplacedControlWord};
    EXPECT_EQ(codes, all);
}

/// A host's class that has something to say of its own.
class OutspokenList : public ThreadChildListType {
public:
    OutspokenList() : ThreadChildListType(false) {}
    bool MergeElement(zelString feature, Zelvon::SyncMap<zelString, TypedDataContainer*>& map,
                      std::vector<TypedDataContainer*>& entries, XMLDataWrapper* source, TypedDataContainer* fresh,
                      zelString key, zelString keyName, zelString name) override {
        LogFeatureOverrideIssue(feature, name, "I do not like " + key, __LINE__);
        return ThreadChildListType::MergeElement(feature, map, entries, source, fresh, key, keyName, name);
    }
};

TEST(Findings, OfAHostAndOfWhatCannotBeLoadedAreInTheJournalToo) {
    OutspokenList list;
    MergeJournal journal;
    IssueRecorder log;
    const MergeJournal::Recording recording(journal);
    ASSERT_TRUE(MergeText(list, "F", "<ThreadChildList>\n<ChildThread UniqueName='A'/></ThreadChildList>"));
    Framework::faultFunction = [](const char* where) {
        if (std::string_view(where) == "Populate") {
            throw std::runtime_error(where);
        }
    };
    MergeText(list, "F", "<ThreadChildList>\n<ChildThread UniqueName='B'/></ThreadChildList>");
    Framework::faultFunction = nullptr;
    const std::vector<Finding> found = ProblemsIn(journal);
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].Code, Code::OtherIssue);
    EXPECT_EQ(found[0].Text, "I do not like A");
    EXPECT_EQ(found[0].Place.Line, 2U);
    EXPECT_EQ(found[2].Code, Code::NotLoaded);
    EXPECT_EQ(found[2].Place.Line, 2U);
    EXPECT_EQ(log.issues.size(), 3U);
    EXPECT_EQ(list.GetChildThreadLength(), 1);
}

TEST(Findings, EveryCodeHasAMistakeANameAndAnExplanation) {
    std::set<Code> codes = {Code::OtherIssue, Code::NotLoaded}; // of the test above
    for (const Scenario& scenario : Scenarios()) {
        for (const Mistake& mistake : scenario.mistakes) {
            codes.insert(mistake.code);
        }
    }
    std::set<std::string_view> names;
    for (const Code code : AllFindingCodes()) {
        EXPECT_TRUE(codes.contains(code)) << FindingName(code);
        EXPECT_TRUE(names.insert(FindingName(code)).second) << FindingName(code);
        EXPECT_FALSE(FindingExplanation(code).empty()) << FindingName(code);
    }
    EXPECT_EQ(AllFindingCodes().size(), codes.size());
}

TEST(Findings, NearestNamesAreThoseThatMayHaveBeenMeant) {
    const std::vector<std::string> known = {"Doc", "State", "StateTable", "StateTrigger", "BaseState", "Name"};
    const auto nearest = [&known](const char* name, std::size_t limit) { return NearestNames(name, known, limit); };
    using Names = std::vector<std::string>;
    EXPECT_EQ(nearest("Stat", 1), Names{"State"});
    EXPECT_EQ(nearest("BASESTATE", 1), Names{"BaseState"});
    EXPECT_EQ(nearest("StateTabel", 3).at(0), "StateTable");
    EXPECT_EQ(nearest("Zebra", 3), Names{});
    EXPECT_EQ(nearest("", 3), Names{});
    EXPECT_EQ(nearest("State", 0), Names{});
    EXPECT_LE(NearestNames("a", Names(100, "b"), 3).size(), 3U);
    EXPECT_EQ(NearestNames("Stat", {std::string(1 << 20, 'S'), "State"}), Names{"State"});
}

} // namespace
