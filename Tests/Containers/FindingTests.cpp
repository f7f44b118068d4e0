// What is wrong with an override or a document: each mistake is told once, at its place, with the name that was meant.

#include "Containers/EveryClass.h"
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
         "<StateProcessingRoot xmlns:xsi='x' xsi:noNamespaceSchemaLocation='s' FeatureID='Slips' Versoin='2'>\n"
         "<RevisionHistory fileName='\xC3\xA9'>1</RevisionHistory><RevisoinHistory/>\n"
         "<StateTable InitialStat='Scan'><!-- \xE3\x81\x82 --><Stat Name='Attract'/>\n"
         "  <State Name='Attract' MergeAction='Clera'/>\n"
         "  <State Name='Scan' Transient='perhaps' MergeActoin='Add'/>\n"
         "  <State Name='Scna' MergeAction='Remove'/>\n"
         "  <State Name='Coupon'\n    MergeAction='Add'/>\n"
         "  <State Name='Bag' PlacementOrder='befor'/>\n"
         "  <State Name='Pay' PlacementOrder='Before' PlacementIndex='Coupn'/>\n"
         "  <State BaseState='x'/>\n"
         "  <State Name='Help'><Doc>numbered</Doc><PreStateTrigger><ActionRef>first</ActionRef>\n"
         "    <ActionRef>second</ActionRef><ActionRef>third</ActionRef></PreStateTrigger>\n"
         "    <PostStateTrigger><ActionRef MergeAction='Replace'>r</ActionRef></PostStateTrigger></State>\n"
         "  <State Name='Survey' MergeAction='Remove' PlacementOrder='First'/>\n"
         "  <State Name='Help' BaseState='y'/>\n"
         "  <State Name='New' MergeAction='Add'><PreStateTrigger "
         "MergeAction='Clear'/><PreStateTrigger/><StateTriggers><Stranger/><StateAction Trigger='u'/></StateTriggers>\n"
         "    <StateTriggers><StateAction Trigger='t'><ActionListCached>maybe</ActionListCached></StateAction>\n"
         "      <StateAction Trigger='t' Transient='true'/>\n"
         "      <StateAction Trigger='u' Transient='true'/></StateTriggers></State>\n"
         "  some words</StateTable></StateProcessingRoot>\n",
         {
             {Code::UnknownAttribute, "Versoin", Check, "Version"},
             {Code::UnknownElement, "<RevisoinHistory", Check, "RevisionHistory"},
             {Code::UnknownAttribute, "InitialStat=", Check, "InitialState"},
             {Code::UnknownElement, "<Stat ", Check, "State"},
             {Code::UnknownControlWord, "MergeAction='Clera'", Both, "Clear"},
             {Code::NotABool, "Transient='perhaps'"},
             {Code::UnknownAttribute, "MergeActoin", Check, "MergeAction"},
             {Code::MissingTarget, "<State Name='Scna'", Log, "Scan"},
             {Code::TargetExists, "<State Name='Coupon'", Log},
             {Code::UnknownControlWord, "PlacementOrder='befor'", Both, "Before"},
             {Code::MissingNeighbour, "PlacementIndex='Coupn'", Log, "Coupon"},
             {Code::MissingKey, "<State BaseState='x'", Both},
             {Code::RepeatedValue, "<ActionRef>second", Check, "", "<ActionRef>first"},
             {Code::MisplacedControlWord, "MergeAction='Replace'", Both},
             {Code::MisplacedControlWord, "PlacementOrder='First'", Both},
             {Code::DuplicateKey, "<State Name='Help' Base", Check, "", "<State Name='Help'>"},
             {Code::MisplacedControlWord, "MergeAction='Clear'/>", Both}, // and what is left out is no first of two
             {Code::UnknownElement, "<Stranger/>"},
             {Code::RepeatedValue, "<StateTriggers><StateAction", Check, "", "<StateTriggers><Stranger"},
             {Code::NotABool, "<ActionListCached>maybe"},
             {Code::DuplicateKey, "<StateAction Trigger='t' Tr", Both, "", "<StateAction Trigger='t'>"},
             {Code::DuplicateKey, "<StateAction Trigger='u' Tr", Both, "", "<StateAction Trigger='u'/>"},
             {Code::StrayText, "some words"},
         }},
        {type("ItemInformationType"),
         "<ItemInformation/>",
         "<ItemInformation>\n"
         "<LaneType>LTYPE_KIOKS</LaneType><ItemPrice>cheap</ItemPrice>\n"
         "<ItemQuantity> 7 </ItemQuantity><MeasuredWeight>99999999999</MeasuredWeight>\n"
         "<MeasuredHeight>2.5</MeasuredHeight><NofPrice>-2.5e3</NofPrice><NofMod1></NofMod1>\n"
         "<NofMod2>-99999999999</NofMod2><NofMod3>+007</NofMod3><PricePerUnitUsed>1e-999</PricePerUnitUsed>\n"
         "<NewItem PlacementOrder='First'> Off</NewItem><OverrideMode/>\n"
         "<PassAround>YES</PassAround><LongItem><![CDATA[not]]></LongItem><ItemDesc>7</ItemDesc></ItemInformation>",
         {
             {Code::UnknownWord, "<LaneType", Check, "LTYPE_KIOSK"},
             {Code::NotANumber, "<ItemPrice"},
             {Code::NumberOutOfRange, "<MeasuredWeight"},
             {Code::NotANumber, "<MeasuredHeight"},
             {Code::NotANumber, "<NofMod1"},
             {Code::NumberOutOfRange, "<NofMod2"},
             {Code::NumberOutOfRange, "<PricePerUnitUsed"},
             {Code::MisplacedControlWord, "PlacementOrder", Both}, // and the value is taken
             {Code::NotABool, "<LongItem"},
         }},
        {type("StateProcessingRootType"),
         table,
         "\n<StateProcessingRoot MergeAction='Remove' Versoin='2'/>",
         {{Code::MisplacedControlWord, "MergeAction", Both}},
         false},
    };
}

std::string Shown(Code code, const Framework::Place& place, const Framework::Place& note, const std::string& near) {
    return std::to_string(place.line) + ":" + std::to_string(place.column) + " " + std::string(FindingName(code)) +
           (note.line == 0 ? "" : " note " + std::to_string(note.line) + ":" + std::to_string(note.column)) +
           (near.empty() ? "" : " near " + near);
}

std::string Shown(const Finding& finding) {
    EXPECT_FALSE(finding.Text.empty());
    EXPECT_LE(finding.Near.size(), 3U);
    const DocumentPlace note = finding.Notes.empty() ? DocumentPlace() : finding.Notes[0].Place;
    return Shown(finding.Code, {finding.Place.Line, finding.Place.Column}, {note.Line, note.Column},
                 finding.Near.empty() ? std::string() : std::string(finding.Near[0]));
}

Framework::Place PlaceOf(const std::string& text, const std::string& xml) {
    const std::size_t at = xml.find(text);
    EXPECT_EQ(xml.find(text, at + 1), text.empty() ? 1 : std::string::npos) << text;
    return text.empty() ? Framework::Place() : Framework::PlaceIn(xml, at);
}

using Lines = std::multiset<std::size_t>; ///< of a document, that are told of

/// Findings and lines against the mistakes that one of the tellers tells of, all of them without.
void ExpectTold(const std::vector<Finding>* found, const Lines* lines, const Scenario& scenario, unsigned tellers) {
    std::multiset<std::string> expected, told;
    Lines expectedLines;
    for (const Mistake& mistake : scenario.mistakes) {
        if (tellers == Nobody || (mistake.tellers & tellers) != 0) {
            const Framework::Place place = PlaceOf(mistake.at, scenario.xml);
            expected.insert(Shown(mistake.code, place, PlaceOf(mistake.note, scenario.xml), mistake.near));
            expectedLines.insert(place.line);
        }
    }
    if (found != nullptr) {
        std::transform(found->begin(), found->end(), std::inserter(told, told.end()),
                       [](const Finding& finding) { return Shown(finding); });
        EXPECT_EQ(told, expected);
    }
    EXPECT_EQ(lines == nullptr ? expectedLines : *lines, expectedLines);
}

std::vector<Finding> ProblemsIn(const MergeJournal& journal) {
    std::vector<Finding> found;
    for (const std::size_t number : journal.Problems()) {
        found.push_back(*journal.At(number).Problem);
    }
    return found;
}

TEST(Findings, EveryMistakeOfAnOverrideIsToldOnceAtItsPlace) {
    for (const Scenario& scenario : Scenarios()) {
        SCOPED_TRACE(scenario.xml.substr(0, scenario.xml.find('\n')));
        std::vector<std::string> merged;
        const auto mergeAndLog = [&] {
            const auto object = scenario.type.Create(false);
            EXPECT_TRUE(LoadText(*object, scenario.base));
            const IssueRecorder log;
            EXPECT_EQ(MergeText(*object, "Slips", scenario.xml), scenario.isPossible);
            EXPECT_TRUE(merged.empty() || Samples::Lines(*object) == merged) << "another tree";
            merged = Samples::Lines(*object);
            Lines lines;
            for (const OverrideIssue& issue : log.issues) {
                lines.insert(issue.Line);
            }
            return lines;
        };
        const Lines ofPlain = mergeAndLog();
        ExpectTold(nullptr, &ofPlain, scenario, Log);
        MergeJournal journal;
        {
            const MergeJournal::Recording recording(journal);
            const Lines ofJournal = mergeAndLog();
            const std::vector<Finding> found = ProblemsIn(journal);
            ExpectTold(&found, &ofJournal, scenario, Nobody);
        }
        MergeJournal::SetStrict(true);
        EXPECT_TRUE(MergeJournal::IsStrict());
        const Lines ofStrict = mergeAndLog();
        MergeJournal::SetStrict(false);
        ExpectTold(nullptr, &ofStrict, scenario, Nobody);
    }
}

TEST(Findings, CheckTellsWhatCanBeSaidOfAFileAlone) {
    for (const Scenario& scenario : Scenarios()) {
        SCOPED_TRACE(scenario.xml.substr(0, scenario.xml.find('\n')));
        XMLDataWrapper document;
        ASSERT_TRUE(document.LoadXMLText(scenario.xml, true));
        const std::vector<Finding> found = DocumentCheck::Run(document, scenario.type, DocumentCheck::Kind::Override);
        if (scenario.isPossible) {
            ExpectTold(&found, nullptr, scenario, Check);
        } else {
            EXPECT_EQ(found.size(), 2U); // the check goes on where the merge ends
        }
        EXPECT_TRUE(std::is_sorted(found.begin(), found.end(), [](const Finding& one, const Finding& other) {
            return std::pair(one.Place.Line, one.Place.Column) < std::pair(other.Place.Line, other.Place.Column);
        }));
        if (scenario.xml.find("MergeAction") == std::string::npos) {
            const std::vector<Finding> ofDocument = DocumentCheck::Run(document, scenario.type);
            ExpectTold(&ofDocument, nullptr, scenario, Check);
        }
    }
    XMLDataWrapper document;
    EXPECT_TRUE(DocumentCheck::Run(document, ContainerCatalog::FindRoot("LoadConfig")).empty());
    ASSERT_TRUE(
        document.LoadXMLText("<P><A b='1'/>\n<ChildThread c='2'><\xC3\xA9t\xC3\xA9\n d='3'>e</\xC3\xA9t\xC3\xA9>"
                             "</ChildThread></P>",
                             false));
    ASSERT_NE(document.SelectNode("ChildThread", false), nullptr); // the check begins there
    const std::vector<Finding> found = DocumentCheck::Run(document, ContainerCatalog::FindClass("ChildThreadType"));
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].Place.Column, 14U);
    EXPECT_EQ(found[0].Place.Length, 5U);
    EXPECT_EQ(found[1].Place.Column, 20U);
    EXPECT_EQ(found[1].Place.Length, 4U); // up to the end of the line
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
            for (Finding& finding : DocumentCheck::Run(document, type, DocumentCheck::Kind::Override)) {
                finding.Near.clear(); // below something new fewer words are possible
                EXPECT_TRUE(inFile.insert(Shown(finding)).second) << finding.Text;
            }
            for (Finding& finding : ProblemsIn(journal)) {
                finding.Near.clear();
                const std::string shown = Shown(finding);
                EXPECT_TRUE(told.insert(shown).second) << shown << " twice: " << finding.Text;
                EXPECT_TRUE(ofMergesAlone.contains(finding.Code) || inFile.contains(shown)) << shown;
            }
            EXPECT_EQ(log.issues.size(), told.size());
            ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed << "\n" << xml;
        }
    });
}

/// A child that stands twice is read into one object, and so are its children: a load drops what has the same key in
/// both, and logs that.
TEST(Findings, OfKeysThatStandInTwoElementsOfOneChildAreThoseOfALoad) {
    std::size_t dropped = 0;
    ForEveryClass([&dropped](CatalogClass type) {
        for (const CatalogField& field : type.Fields()) {
            if (field.GetForm() != CatalogField::Child) {
                continue;
            }
            Samples::Random random(3);
            const std::string root(type.ElementName());
            const CatalogClass part = ContainerCatalog::FindClass(field.ClassName());
            std::string child =
                Samples::ToXml(Samples::Make(part, std::string(field.Name()), random, 1, true), random, false);
            child.erase(0, child.find('\n')); // the declaration
            const std::string xml = "<" + root + ">" + child + child + "</" + root + ">";
            XMLDataWrapper document;
            ASSERT_TRUE(document.LoadXMLText(xml, true));
            std::multiset<std::string> found, logged;
            for (const Finding& finding : DocumentCheck::Run(document, type)) {
                if (finding.Code == Code::DuplicateKey) {
                    found.insert(std::to_string(finding.Place.Line) + ":" + std::to_string(finding.Place.Column));
                }
            }
            const IssueRecorder log;
            const auto object = type.Create(false);
            ASSERT_TRUE(LoadText(*object, xml)) << object->GetLastError();
            for (const OverrideIssue& issue : log.issues) {
                logged.insert(std::to_string(issue.Line) + ":" + std::to_string(issue.Column));
            }
            EXPECT_EQ(found, logged) << xml;
            dropped += logged.size();
        }
    });
    EXPECT_GT(dropped, 50U);
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
