// What the field table of a class does not say: keys and names seen from outside, with what is expected written out.

#include "Containers/EveryClass.h"

#include <algorithm>
#include <iterator>
#include <sstream>

#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

std::vector<std::string> Words(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// Lists whose key is only a part of what tells their entries apart.
const struct PartKey {
    const char* type;
    const char* list;
    const char* key;
    const char* first;  ///< attributes of the entry that is there
    const char* second; ///< attributes of one with the same key
    const char* identity;
} partKeys[] = {
    {"CurrencyAudioKeysType", "VoiceCurrency", "1", "index='1' type='coin'", "index='1' type='note' plural='02'",
     "@index='1'  and @type='note'  and @plural='2' "},
    {"AudioExpandPhraseType", "Condition", "", "description='' parmRef='p' type='t' compareTo='c'",
     "description='' parmRef='q' type='t' compareTo='c'",
     "@description=''  and @parmRef='q'  and @type='t'  and @compareTo='c' "},
    {"ConfigurationViewsType", "ConfigView", "v", "Name='v' IsPublic='true'", "Name='v' IsPublic='no'",
     "@Name='v'  and @IsPublic='false' "},
};

TEST(KeyOfAPart, DecidesAloneOnLoadMergeAndUpdateAndTheWholeIdentityInDumps) {
    for (const PartKey& row : partKeys) {
        SCOPED_TRACE(row.list);
        const CatalogClass type = ContainerCatalog::FindClass(row.type);
        const std::string root(type.ElementName());
        const std::string name = row.list;
        const std::string first = "<" + root + "><" + name + " " + row.first + "/>";
        const std::string second = "<" + name + " " + row.second + "/></" + root + ">";
        IssueRecorder recorder;
        const CatalogField list = *ContainerCatalog::FindField(type, name);
        Loaded doubled(type, first + second);
        EXPECT_EQ(list.Length(*doubled.object), 1U);
        ASSERT_EQ(recorder.issues.size(), 1U);
        EXPECT_EQ(recorder.issues[0].ErrorText, "Duplicate Index for " + name + ", Index = " + row.key);

        Loaded merged(type, first + "</" + root + ">");
        ASSERT_TRUE(MergeText(*merged.object, "F", "<" + root + ">" + second));
        EXPECT_EQ(recorder.issues.size(), 1U);
        ASSERT_EQ(list.Length(*merged.object), 1U);
        EXPECT_EQ(list.Entry(*merged.object, 0)->GetAttributeList(), row.identity);
        ASSERT_TRUE(merged.object->UpdateContainedData());
        EXPECT_EQ(Samples::Lines(*Loaded(type, merged.Text()).object), Samples::Lines(*merged.object));
        EXPECT_EQ(merged.Text().find("/>"), merged.Text().rfind("/>")) << "one entry as before";
        EXPECT_EQ(ElementNames(DumpedByNode(*merged.object)), Words(name));
        // Into a document with the entry of the old identity a dump puts the new one beside it, once.
        const std::string beside = DumpedByQuery(*merged.object, first + "</" + root + ">");
        EXPECT_EQ(ElementNames(beside), Words(name + " " + name)) << beside;
        EXPECT_EQ(ElementNames(DumpedByQuery(*merged.object, beside)), Words(name + " " + name));
    }
}

const char* const tenders = "<TenderDataList><TenderDataEntry EntryIndex='1'><AssistantId>a</AssistantId>"
                            "</TenderDataEntry><TenderDataEntry EntryIndex='01'><AssistantId>b</AssistantId>"
                            "</TenderDataEntry></TenderDataList>";

TEST(IntKey, OneNumberInTwoTextsIsTwoEntriesAndByQueryOneElement) {
    Loaded loaded(ContainerCatalog::FindClass("TenderDataListType"), tenders);
    auto& list = dynamic_cast<TenderDataListType&>(*loaded.object);
    ASSERT_EQ(list.GetTenderDataEntryLength(), 2);
    EXPECT_EQ(list.GetTenderDataEntry("1"), list.GetTenderDataEntry(0));
    EXPECT_EQ(list.GetTenderDataEntry("01"), list.GetTenderDataEntry(1));
    EXPECT_EQ(list.GetTenderDataEntry("001"), nullptr);
    list.GetTenderDataEntry("01")->SetAssistantId("B");
    ASSERT_TRUE(list.UpdateContainedData());
    std::string expected = tenders;
    expected.replace(expected.find(">b<"), 3, ">B<");
    EXPECT_EQ(loaded.Text(), expected) << "the number is not written anew";
    EXPECT_EQ(ElementNames(DumpedByNode(list)), Words("TenderDataEntry TenderDataEntry"));
    const std::string byQuery = DumpedByQuery(list, "<TenderDataList/>");
    EXPECT_EQ(ElementNames(byQuery), Words("TenderDataEntry")) << byQuery;
    EXPECT_LT(byQuery.find("<AssistantId>a<"), byQuery.find("<AssistantId>B<"));

    const IssueRecorder recorder;
    const std::string entry = "<TenderDataEntry EntryIndex='01'";
    ASSERT_TRUE(MergeText(list, "F",
                          "<TenderDataList>" + entry +
                              "><AssistantVoid>1</AssistantVoid></TenderDataEntry>"
                              "<TenderDataEntry EntryIndex='001'/></TenderDataList>"));
    ASSERT_EQ(list.GetTenderDataEntryLength(), 3);
    EXPECT_FALSE(list.GetTenderDataEntry("1")->GetAssistantVoid());
    EXPECT_TRUE(list.GetTenderDataEntry("01")->GetAssistantVoid());
    EXPECT_EQ(list.GetTenderDataEntry("001")->GetEntryIndex(), 1);
    ASSERT_TRUE(MergeText(list, "F", "<TenderDataList>" + entry + " MergeAction='Remove'/></TenderDataList>"));
    ASSERT_EQ(list.GetTenderDataEntryLength(), 2);
    EXPECT_EQ(list.GetTenderDataEntry(0), list.GetTenderDataEntry("1")) << "an override removes by text";
    EXPECT_TRUE(recorder.issues.empty());
}

TEST(IntKey, RemoveTakesTheFirstOfTheNumberAndLeavesNoKeyToIt) {
    for (const char* const key : {"1", "01", "001", " 1 "}) {
        TenderDataListType list(false);
        ASSERT_TRUE(LoadText(list, tenders));
        list.RemoveTenderDataEntry("2", "");
        list.RemoveTenderDataEntry(key, "");
        ASSERT_EQ(list.GetTenderDataEntryLength(), 1) << key;
        EXPECT_EQ(list.GetTenderDataEntry("1"), nullptr) << key;
        ASSERT_EQ(list.GetTenderDataEntry("01"), list.GetTenderDataEntry(0)) << key;
        EXPECT_EQ(list.GetTenderDataEntry(0)->GetAssistantId(), "b");
        list.RemoveTenderDataEntry("001", "");
        EXPECT_EQ(list.GetTenderDataEntryLength(), 0);
        EXPECT_EQ(list.GetTenderDataEntry("01"), nullptr) << key;
    }
}

/// Objects of classes that stand under another name than their own, handed to an owner.
TEST(Naming, CallersObjectsKeepTheirClassesNameUntilADocumentNamesThem) {
    AudioGlobalParamsType child(false);
    child.SetPathSearchOrder(new AudioPathSearchOrderType(false));
    AudioGlobalParamsType loaded(false);
    loaded.SetPathSearchOrder(new AudioPathSearchOrderType(false));
    ASSERT_TRUE(LoadText(*loaded.GetPathSearchOrder(), "<AudioPathSearchOrder/>"));
    AudioExpandPhraseType keyed(false);
    keyed.AddNewCondition(new AudioExpandPhraseConditionType(false), "k");
    CaptureDocType plain(false); // whose entries are never merged into
    plain.AddNewCapture(new CaptureDocEntryType(false));
    const struct {
        TypedDataContainer& owner;
        const char* over;
        const char* before;
        const char* after;
    } rows[] = {
        {child, "<PathSearchOrder/>", "AudioPathSearchOrder", "PathSearchOrder"},
        {loaded, "<PathSearchOrder/>", "AudioPathSearchOrder", "PathSearchOrder"},
        {keyed, "<Condition description='k'/>", "AudioExpandPhraseCondition", "Condition"},
        {plain, "<Capture/>", "CaptureDoc", "CaptureDoc Capture"},
    };
    for (const auto& [owner, over, before, after] : rows) {
        const std::string name = owner.GetContainerName();
        const std::vector<std::string> either = Words(std::string(before) + " " + after);
        const auto names = [&owner = owner, &either] {
            std::vector<std::string> found = ElementNames(DumpedByNode(owner));
            std::erase_if(found, [&](const auto& each) { return std::count(either.begin(), either.end(), each) == 0; });
            return found;
        };
        EXPECT_EQ(names(), Words(before));
        ASSERT_TRUE(MergeText(owner, "F", "<" + name + ">" + over + "</" + name + ">"));
        EXPECT_EQ(names(), Words(after));
    }
    EXPECT_EQ(plain.GetCapture(2)->GetContainerName(), "Capture");
}

/// Names that stand for an attribute in one class and an element in another, or for both in other letters.
const struct NameSake {
    const char* type;
    const char* before;
    const char* over;
    const char* merged; ///< as dumped by node
    const char* updated;
} nameSakes[] = {
    {"EventPacketFilterType",
     "<EventPacketFilter PacketID='p'><Doc>b</Doc><EventFilterTest Index='1' Doc='c'><Doc>d</Doc></EventFilterTest>"
     "</EventPacketFilter>",
     "<EventPacketFilter Doc='A'><Doc>B</Doc><EventFilterTest Index='1'><Doc>D</Doc></EventFilterTest>"
     "</EventPacketFilter>",
     "<EventPacketFilter Doc=\"A\" PacketID=\"p\"><EventFilterTest Doc=\"c\" Index=\"1\"/></EventPacketFilter>",
     "<EventPacketFilter PacketID='p' Doc='A'><Doc>b</Doc><EventFilterTest Index='1' Doc='c'><Doc>d</Doc>"
     "</EventFilterTest></EventPacketFilter>"},
    {"InValidOptionRefType",
     "<InValidOptionRef Value='a'><Value>b</Value><TestInValidOption Value='c'/></InValidOptionRef>",
     "<InValidOptionRef><Value>B</Value><NewDefault>n</NewDefault><TestInValidOption Value='C'><Value>D</Value>"
     "</TestInValidOption></InValidOptionRef>",
     "<InValidOptionRef Value=\"a\"><FailedAction/><NewDefault>n</NewDefault><TestInValidOption><OptionName/><Value/>"
     "</TestInValidOption><TestInValidOption><OptionName/><Value>D</Value></TestInValidOption></InValidOptionRef>",
     "<InValidOptionRef Value='a'><Value>b</Value><NewDefault>n</NewDefault><TestInValidOption Value='c'/>"
     "</InValidOptionRef>"},
    {"StructDefaultType", "<DefaultValue Index='1'><ConditionalValue index='2' Index='3'/></DefaultValue>",
     "<DefaultValue Index='4' index='5'><ConditionalValue Index='6' index='2'><ReturnValue>r</ReturnValue>"
     "</ConditionalValue></DefaultValue>",
     "<DefaultValue index=\"5\"><StructureElement/><ConditionalValue index=\"2\"><ReturnValue>r</ReturnValue>"
     "<ReturnQuery/></ConditionalValue></DefaultValue>",
     "<DefaultValue Index='1' index='5'><ConditionalValue index='2' Index='3'><ReturnValue>r</ReturnValue>"
     "</ConditionalValue></DefaultValue>"},
};

TEST(NameSake, FormAndLettersDecideInEveryOperation) {
    for (const NameSake& row : nameSakes) {
        SCOPED_TRACE(row.type);
        Loaded loaded(ContainerCatalog::FindClass(row.type), row.before);
        ASSERT_TRUE(MergeText(*loaded.object, "F", row.over));
        EXPECT_EQ(DumpedByNode(*loaded.object), row.merged);
        ASSERT_TRUE(loaded.object->UpdateContainedData());
        EXPECT_EQ(loaded.Text(), row.updated);
    }
}

} // namespace
