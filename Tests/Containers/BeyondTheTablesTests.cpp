// What the field table of a class does not say: names, keys and parents seen from outside, each written out by hand.

#include "Containers/EveryClass.h"

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <type_traits>

#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

CatalogField FieldOf(TypedDataContainer& object, std::string_view name) {
    const auto field = ContainerCatalog::FindField(ContainerCatalog::ClassOf(object), name);
    EXPECT_TRUE(field) << name;
    return *field;
}

std::string Pairs(ParameterList& list) {
    std::string text;
    for (std::size_t i = 0; i < list.size(); ++i) {
        text += (i == 0 ? "" : " ") + list.ItemData(i)->ElementName + "=" + list.ItemData(i)->strValue;
    }
    return text;
}

/// Documents hold the class's own elements in front of its parent's, and elements that only its relatives know.
struct Chain {
    const char* type;
    const char* element;
    const char* attributes; ///< as GetPLAttributeList gives them; the document's attributes, in another order
    const char* before;
    const char* properties;
    const char* dumped;
};

const Chain chains[] = {
    {"AbstractMethodDefType", "AbstractMethod", "", "<Method>m</Method>", "ClassName= Method=m",
     "<ClassName/><Method>m</Method>"},
    {"StateActionHandlerType", "StateActionHandler", "ActionID=a PreProcessor=true",
     "<Parameters/><Doc Index='7'>d</Doc><Doc>d</Doc><Method>m</Method><ClassName>c</ClassName>",
     "ActionID=a PreProcessor=true", "<ClassName>c</ClassName><Method>m</Method><Doc>d</Doc><Doc>d</Doc><Parameters/>"},
    {"DataProcessorMethodType", "DataProcessorMethod", "Name=n", "<Unused>u</Unused><Method>m</Method>",
     "Unused=u Name=n", "<ClassName/><Method>m</Method><Unused>u</Unused>"},
    {"LineItemInfoType", "LineItemInfo", "", "<RequestID>r</RequestID><VoidFlag>1</VoidFlag>",
     "Description= ReturnFlag=false DepositFlag=false VoidFlag=true RequestID=r",
     "<Description/><ReturnFlag>false</ReturnFlag><DepositFlag>false</DepositFlag><VoidFlag>true</VoidFlag>"
     "<RequestID>r</RequestID>"},
    {"PointsInfoType", "PointsInfo", "",
     "<Points>5</Points><PointsTotals><Description>inner</Description></PointsTotals><Description>d</Description>",
     "Type= IsRedeemed=false Points=5",
     "<Description>d</Description><ReturnFlag>false</ReturnFlag><DepositFlag>false</DepositFlag>"
     "<VoidFlag>false</VoidFlag><RequestID/><PointsTotals><GroupType/><Description>inner</Description><PointsTotal/>"
     "</PointsTotals><Type/><IsRedeemed>false</IsRedeemed><Points>5</Points>"},
    {"SimpleDataEntryType", "SimpleDataEntry",
     "SourceType=t Source=s PreProcess= RootData=true ReadOnly=true ExtraData=",
     "<Value>v</Value><VarInput/><Doc Index='x'>d</Doc>",
     "Value=v SourceType=t Source=s PreProcess= RootData=true ReadOnly=true ExtraData=",
     "<Doc Index=\"1\">d</Doc><Value>v</Value>"},
    {"ExtendableDataEntryType", "ExtendableDataEntry",
     "SourceType=t Source=s PreProcess= RootData=true ReadOnly=false ExtraData=e",
     "<VarInput/><Value>v</Value><DataList/>", "", "<Value>v</Value><VarInput/>"},
    {"StateActionDataEntryType", "StateActionDataEntry",
     "SourceType= Source=s PreProcess= RootData=false ReadOnly=false ExtraData= Name=n",
     "<DataList/><VarInput/><Unused/><Value>v</Value>", "Name=n", "<Value>v</Value><VarInput/><DataList/>"},
    {"DataListDataEntryType", "DataListItem",
     "SourceType= Source=s PreProcess= RootData=false ReadOnly=false ExtraData= Name=n DataType=d",
     "<DataList/><Unused>u</Unused><VarInput/><Value>v</Value>", "Unused=u Name=n DataType=d",
     "<Value>v</Value><VarInput/><Unused>u</Unused>"},
    {"PreProcessDataEntryType", "PreProcessDataEntry",
     "SourceType= Source=s PreProcess= RootData=false ReadOnly=false ExtraData= Name=n",
     "<Unused>u</Unused><VarInput/><Value>v</Value>", "Unused=u Name=n", "<Value>v</Value><Unused>u</Unused>"},
};

TEST(Chain, ParentsComeFirstInDumpsAndPredicatesAndAreNoProperties) {
    for (const Chain& row : chains) {
        SCOPED_TRACE(row.type);
        std::string attributes; // in the other order
        std::string predicate;
        std::istringstream words(row.attributes);
        for (std::string word; words >> word;) {
            const std::string name = word.substr(0, word.find('='));
            const std::string value = word.substr(word.find('=') + 1);
            attributes.insert(0, " " + name + "='" + value + "'");
            predicate += (predicate.empty() ? "@" : " and @") + name + "='" + value + "' ";
        }
        const std::string element = row.element;
        const std::string xml = "<" + element + attributes + ">" + row.before + "</" + element + ">";
        const CatalogClass type = ContainerCatalog::FindClass(row.type);
        ASSERT_TRUE(type);
        Loaded loaded(type, xml);
        TypedDataContainer& object = *loaded.object;
        EXPECT_EQ(object.GetBaseType(), row.type);
        EXPECT_EQ(object.GetAttributeList(), predicate);
        const std::unique_ptr<ParameterList> list(object.GetPLAttributeList());
        EXPECT_EQ(Pairs(*list), row.attributes);
        ParameterList properties;
        object.GetProperties(properties);
        EXPECT_EQ(Pairs(properties), row.properties);
        const std::string end = "</" + element + ">";
        const std::string byNode = DumpedByNode(object);
        EXPECT_EQ(byNode.substr(byNode.find('>') + 1), row.dumped + end);
        const std::string byQuery = DumpedByQuery(object, "<" + element + attributes + "/>");
        const std::regex emptyChildren("<(Parameters|VarInput|DataList)/>"); // by query they are not made
        EXPECT_EQ(byQuery.substr(byQuery.find('>') + 1), std::regex_replace(row.dumped + end, emptyChildren, ""));
    }
}

TEST(Chain, OneNodeIsUpdatedAndMergedByTheWholeChain) {
    Loaded loaded(ContainerCatalog::FindClass("DataListDataEntryType"),
                  "<DataListItem Name='n' Source='s'><Unused>u</Unused><Value>v</Value></DataListItem>");
    auto& entry = dynamic_cast<DataListDataEntryType&>(*loaded.object);
    ASSERT_TRUE(MergeText(entry, "F",
                          "<DataListItem Source='S' DataType='D'><DataList/><VarInput/><Value>V</Value>"
                          "<Unused>U</Unused></DataListItem>"));
    EXPECT_NE(entry.GetVarInput(), nullptr);
    ASSERT_TRUE(entry.UpdateContainedData());
    EXPECT_EQ(loaded.Text(), "<DataListItem Name='n' Source='S' DataType='D'><Unused>U</Unused><Value>V</Value>"
                             "</DataListItem>");
    XMLDataWrapper none;
    const IssueRecorder recorder;
    entry.SetValue("kept");
    EXPECT_FALSE(entry.MergeDataMembers(&none, "F"));
    EXPECT_EQ(recorder.issues.size(), 1U) << "the parents are not asked";
    EXPECT_EQ(entry.GetValue(), "kept");
    const std::string xml = "<DataListItem Name='n'><Value>v</Value></DataListItem>";
    XMLDataWrapper wrapper;
    ASSERT_TRUE(wrapper.LoadXMLText(xml, true));
    ASSERT_TRUE(entry.LoadFromDataPacket(nullptr, &wrapper, true));
    entry.SetValue("new");
    EXPECT_FALSE(entry.UpdateContainedData());
    EXPECT_EQ(wrapper.GetXMLText(), xml);
}

/// Lists whose key is only a part of what tells their entries apart.
struct PartKey {
    const char* type;
    const char* list;
    const char* key;
    const char* first;  ///< attributes of the entry that is there
    const char* second; ///< attributes of one with the same key
    const char* identity;
};

const PartKey partKeys[] = {
    {"CurrencyAudioKeysType", "VoiceCurrency", "1", "index='1' type='coin'", "index='1' type='note' plural='02'",
     "@index='1'  and @type='note'  and @plural='2' "},
    {"AudioExpandPhraseType", "Condition", "", "description='' parmRef='p' type='t' compareTo='c'",
     "description='' parmRef='q' type='t' compareTo='c'",
     "@description=''  and @parmRef='q'  and @type='t'  and @compareTo='c' "},
    {"ConfigurationViewsType", "ConfigView", "v", "Name='v' IsPublic='true'", "Name='v' IsPublic='no'",
     "@Name='v'  and @IsPublic='false' "},
    {"ThreadChildListType", "ChildThread", "u", "UniqueName='u' ConfigValue='a'", "UniqueName='u' ConfigValue='b'",
     "@UniqueName='u'  and @ConfigValue='b'  and @ConfigLogic='' "},
};

TEST(KeyOfAPart, DecidesAloneOnLoadMergeAndUpdateAndTheWholeIdentityInDumps) {
    for (const PartKey& row : partKeys) {
        SCOPED_TRACE(row.list);
        const CatalogClass type = ContainerCatalog::FindClass(row.type);
        const std::string element(type.ElementName());
        const std::string name = row.list;
        const auto document = [&](const std::string& content) {
            return "<" + element + ">" + content + "</" + element + ">";
        };
        const auto entry = [&](const char* attributes) { return "<" + name + " " + attributes + "/>"; };
        IssueRecorder recorder;
        Loaded loaded(type, document(entry(row.first) + entry(row.second)));
        const CatalogField list = FieldOf(*loaded.object, name);
        ASSERT_EQ(list.Length(*loaded.object), 1U);
        ASSERT_EQ(recorder.issues.size(), 1U);
        EXPECT_EQ(recorder.issues[0].ErrorText, "Duplicate Index for " + name + ", Index = " + row.key);

        Loaded merged(type, document(entry(row.first)));
        ASSERT_TRUE(MergeText(*merged.object, "F", document(entry(row.second))));
        EXPECT_EQ(recorder.issues.size(), 1U);
        ASSERT_EQ(list.Length(*merged.object), 1U);
        TypedDataContainer& only = *list.Entry(*merged.object, 0);
        EXPECT_EQ(only.GetAttributeList(), row.identity);
        ASSERT_TRUE(merged.object->UpdateContainedData());
        EXPECT_EQ(Samples::Lines(*Loaded(type, merged.Text()).object), Samples::Lines(*merged.object)) << merged.Text();
        EXPECT_EQ(merged.Text().find("/>"), merged.Text().rfind("/>")) << "one entry as before";

        const std::unique_ptr<XMLDataWrapper> byNode(merged.object->BuildAndReturnDataContent());
        EXPECT_TRUE(byNode->NodeExists(name + "[" + row.identity + "]", false)) << byNode->GetXMLText();
        // Into a document with the entry of the old identity a dump puts another one beside it.
        FullFunctionXMLDataWrapper output;
        ASSERT_TRUE(output.LoadXMLText(document(entry(row.first)), false));
        ASSERT_NE(output.GetOutputDocument(), nullptr);
        for (int i = 0; i < 2; ++i) {
            EXPECT_TRUE(merged.object->DumpMergeContents("", &output, -1, false));
            ASSERT_TRUE(output.LoadNodeList(name, "q", 0));
            EXPECT_EQ(output.GetNodeListLength("q"), 2) << output.GetXMLText();
        }
    }
}

const char* const tenders = "<TenderDataList><TenderDataEntry EntryIndex='1'><AssistantId>a</AssistantId>"
                            "</TenderDataEntry><TenderDataEntry EntryIndex='01'><AssistantId>b</AssistantId>"
                            "</TenderDataEntry></TenderDataList>";

TEST(IntKey, OneNumberInTwoTextsIsTwoEntries) {
    const CatalogClass type = ContainerCatalog::FindClass("TenderDataListType");
    Loaded loaded(type, tenders);
    auto& list = dynamic_cast<TenderDataListType&>(*loaded.object);
    ASSERT_EQ(list.GetTenderDataEntryLength(), 2);
    EXPECT_EQ(list.GetTenderDataEntry("1"), list.GetTenderDataEntry(0));
    EXPECT_EQ(list.GetTenderDataEntry("01"), list.GetTenderDataEntry(1));
    EXPECT_EQ(list.GetTenderDataEntry(1)->GetEntryIndex(), 1);
    EXPECT_EQ(list.GetTenderDataEntry("001"), nullptr);

    list.GetTenderDataEntry("01")->SetAssistantId("B");
    ASSERT_TRUE(list.UpdateContainedData());
    std::string expected = tenders;
    expected.replace(expected.find(">b<"), 3, ">B<");
    EXPECT_EQ(loaded.Text(), expected) << "the number is not written anew";

    const IssueRecorder recorder;
    const std::string over = "<TenderDataList><TenderDataEntry EntryIndex='01'><AssistantVoid>1</AssistantVoid>"
                             "</TenderDataEntry><TenderDataEntry EntryIndex='001'/></TenderDataList>";
    ASSERT_TRUE(MergeText(list, "F", over));
    ASSERT_EQ(list.GetTenderDataEntryLength(), 3);
    EXPECT_FALSE(list.GetTenderDataEntry("1")->GetAssistantVoid());
    EXPECT_TRUE(list.GetTenderDataEntry("01")->GetAssistantVoid());
    EXPECT_EQ(list.GetTenderDataEntry("001"), list.GetTenderDataEntry(2));
    ASSERT_TRUE(MergeText(list, "F",
                          "<TenderDataList><TenderDataEntry EntryIndex='01' MergeAction='Remove'/></TenderDataList>"));
    ASSERT_EQ(list.GetTenderDataEntryLength(), 2);
    EXPECT_EQ(list.GetTenderDataEntry(0)->GetAssistantId(), "a") << "an override removes by text";
    EXPECT_TRUE(recorder.issues.empty());
}

TEST(IntKey, DumpsMakeOneElementForANumberByQueryAndOneForAnEntryByNode) {
    Loaded loaded(ContainerCatalog::FindClass("TenderDataListType"), tenders);
    const std::unique_ptr<XMLDataWrapper> byNode(loaded.object->BuildAndReturnDataContent());
    FullFunctionXMLDataWrapper byQuery;
    ASSERT_TRUE(byQuery.CreateOutputDocument("TenderDataList"));
    EXPECT_TRUE(loaded.object->DumpMergeContents("", &byQuery, -1, false));
    for (XMLDataWrapper* const output : {byNode.get(), static_cast<XMLDataWrapper*>(&byQuery)}) {
        ASSERT_TRUE(output->LoadNodeList("TenderDataEntry", "q", 0));
        const bool isByNode = output == byNode.get();
        EXPECT_EQ(output->GetNodeListLength("q"), isByNode ? 2 : 1);
        ASSERT_NE(output->SelectNodeListItem(0, "q"), nullptr);
        EXPECT_EQ(output->GetStringValue("@EntryIndex", false), "1");
        ASSERT_TRUE(output->LoadNodeList("AssistantId", "ids", 0));
        EXPECT_EQ(output->GetNodeListLength("ids"), isByNode ? 1 : 2) << "by query both write into one";
    }
}

TEST(IntKey, RemoveTakesTheFirstOfTheNumberAndLeavesNoKeyToIt) {
    const struct {
        const char* remove;
        const char* left;
        const char* gone;
    } rows[] = {{"1", "01", "1"}, {"01", "01", "1"}, {" 1 ", "01", "1"}, {"2", "01", "2"}};
    for (const auto& row : rows) {
        TenderDataListType list(false);
        ASSERT_TRUE(LoadText(list, tenders));
        list.RemoveTenderDataEntry(row.remove, "");
        const bool isHit = row.remove != std::string("2");
        ASSERT_EQ(list.GetTenderDataEntryLength(), isHit ? 1 : 2) << row.remove;
        EXPECT_EQ(list.GetTenderDataEntry(row.gone), nullptr) << row.remove;
        ASSERT_EQ(list.GetTenderDataEntry(row.left), list.GetTenderDataEntry(isHit ? 0 : 1)) << row.remove;
        EXPECT_EQ(list.GetTenderDataEntry(row.left)->GetAssistantId(), "b");
        list.RemoveTenderDataEntry("001", "");
        list.RemoveTenderDataEntry("001", "");
        EXPECT_EQ(list.GetTenderDataEntryLength(), 0);
        EXPECT_EQ(list.GetTenderDataEntry(row.left), nullptr);
    }
}

/// A class that stands under another name than its constructor gives, or under several. `hand` gives a new owner an
/// object of it as a caller does, `grow` reads the list behind its end.
struct Naming {
    const char* field;
    const char* constructorName;
    std::pair<std::unique_ptr<TypedDataContainer>, TypedDataContainer*> (*hand)();
    TypedDataContainer* (*grow)(TypedDataContainer& owner) = nullptr;
};

template <typename T> struct Operation;
template <typename Class, typename... Arguments> struct Operation<void (Class::*)(Arguments...)> {
    using Owner = Class;
    using Part = std::remove_pointer_t<std::tuple_element_t<0, std::tuple<Arguments...>>>;
};

template <auto give> auto Hand() {
    using Owner = typename Operation<decltype(give)>::Owner;
    using Part = typename Operation<decltype(give)>::Part;
    auto owner = std::make_unique<Owner>(false);
    auto* const part = new Part(false);
    if constexpr (std::is_invocable_v<decltype(give), Owner&, Part*, zelString>) {
        (owner.get()->*give)(part, "k");
    } else {
        (owner.get()->*give)(part);
    }
    return std::pair<std::unique_ptr<TypedDataContainer>, TypedDataContainer*>(std::move(owner), part);
}

template <typename Owner, typename Part, Part* (Owner::*get)(int)> TypedDataContainer* Grow(TypedDataContainer& owner) {
    return (dynamic_cast<Owner&>(owner).*get)(1);
}

const Naming namings[] = {
    {"PathSearchOrder", "AudioPathSearchOrder", Hand<&AudioGlobalParamsType::SetPathSearchOrder>},
    {"PathSearchOrder", "AudioPathSearchOrder", Hand<&AudioLookupType::SetPathSearchOrder>},
    {"Condition", "AudioExpandPhraseCondition", Hand<&AudioExpandPhraseType::AddNewCondition>},
    {"TestValue", "FilterPropertyTest", Hand<&TestFilterType::SetTestValue>},
    {"FilterPropertyTest", "FilterPropertyTest", Hand<&EventFilterTestType::AddNewFilterPropertyTest>},
    {"ItemIdentifier", "BarCode", Hand<&ItemPurchaseTrackingType::SetItemIdentifier>},
    {"BarCode", "BarCode", Hand<&ItemIdentifierType::SetBarCode>},
    {"ItemIdentifier", "ItemIdentifier", Hand<&ItemInfoType::SetItemIdentifier>},
    {"ItemID", "ItemIdentifier", Hand<&CouponInfoType::SetItemID>},
    {"PreStateTrigger", "ActionItem", Hand<&StateDefinitionType::SetPreStateTrigger>},
    {"PostStateTrigger", "ActionItem", Hand<&StateDefinitionType::SetPostStateTrigger>},
    {"ActionItem", "ActionItem", Hand<&StateActionListType::AddNewActionItem>},
    {"SystemEvent", "SystemEventPacket", Hand<&SystemsManagementPacketType::SetSystemEvent>},
    {"SystemEvent", "SystemEvent", Hand<&LoggingInformationPacketType::SetSystemEvent>},
    {"BinaryTransformer", "CommTransformer", Hand<&CommEntryType::SetBinaryTransformer>},
    {"ConfigLevelView", "ConfigLevelViewType", Hand<&ConfigLevelViewMapType::AddNewConfigLevelView>},
    {"EventTransformer", "CommTransformer", Hand<&CommEventTransformerListType::AddNewEventTransformer>,
     Grow<CommEventTransformerListType, CommTransformerType, &CommEventTransformerListType::GetEventTransformer>},
    {"Capture", "CaptureDoc", Hand<&CaptureDocType::AddNewCapture>,
     Grow<CaptureDocType, CaptureDocEntryType, &CaptureDocType::GetCapture>},
    {"Class", "Class", Hand<&StateClassFactoryType::AddNewClass>,
     Grow<StateClassFactoryType, BasicClassFactoryType, &StateClassFactoryType::GetClass>},
    {"DataProcessorClassFactory", "Class", Hand<&DataProcessorClassFactoryListType::AddNewDataProcessorClassFactory>,
     Grow<DataProcessorClassFactoryListType, BasicClassFactoryType,
          &DataProcessorClassFactoryListType::GetDataProcessorClassFactory>},
    {"LineItem", "ItemInfo", Hand<&AddItemResponseType::AddNewLineItem>,
     Grow<AddItemResponseType, ItemInfoType, &AddItemResponseType::GetLineItem>},
};

TEST(Naming, CallersObjectsKeepTheConstructorsNameUntilADocumentNamesThem) {
    for (const Naming& row : namings) {
        const auto [owner, part] = row.hand();
        SCOPED_TRACE(owner->GetBaseType() + "/" + row.field);
        const CatalogField field = FieldOf(*owner, row.field);
        EXPECT_EQ(part->GetContainerName(), row.constructorName);
        EXPECT_EQ(part->GetBaseType(), field.ClassName());
        const std::string dumped = DumpedByNode(*owner);
        const std::string opening = "<" + std::string(row.constructorName);
        EXPECT_TRUE(dumped.find(opening + ">") != std::string::npos ||
                    dumped.find(opening + " ") != std::string::npos || dumped.find(opening + "/>") != std::string::npos)
            << dumped;
        if (row.grow != nullptr) {
            TypedDataContainer* const grown = row.grow(*owner);
            ASSERT_NE(grown, nullptr);
            EXPECT_EQ(grown->GetContainerName(), row.field);
        }
        const std::string name(owner->GetContainerName());
        const std::string key = field.KeyAttribute().empty() ? "" : " " + std::string(field.KeyAttribute()) + "='k'";
        ASSERT_TRUE(MergeText(*owner, "F", "<" + name + "><" + row.field + key + "/></" + name + ">"));
        const bool isPlain = field.GetForm() == CatalogField::PlainList;
        TypedDataContainer* const named =
            !field.IsList() ? field.GetChild(*owner) : field.Entry(*owner, field.Length(*owner) - 1);
        EXPECT_EQ(named == part, !isPlain);
        EXPECT_EQ(named->GetContainerName(), row.field);
        EXPECT_EQ(part->GetContainerName(), isPlain ? row.constructorName : row.field);
    }
}

TEST(Naming, ObjectsOfOneClassAreNotOneObject) {
    Loaded loaded(ContainerCatalog::FindClass("AudioLookupConfigType"),
                  "<AudioLookupConfig><GlobalParams><PathSearchOrder><Path Index='2'>g</Path><Path>h</Path>"
                  "</PathSearchOrder></GlobalParams><AudioKeyMap language='en'><AudioLookup key='k'><PathSearchOrder>"
                  "<Path Index='2'>l</Path></PathSearchOrder></AudioLookup></AudioKeyMap></AudioLookupConfig>");
    auto& root = dynamic_cast<AudioLookupConfigType&>(*loaded.object);
    ASSERT_TRUE(MergeText(root, "F",
                          "<AudioLookupConfig><GlobalParams><PathSearchOrder><Path Index='2'>G</Path>"
                          "<Path Index='02'>new</Path></PathSearchOrder></GlobalParams></AudioLookupConfig>"));
    AudioPathSearchOrderType& global = *root.GetGlobalParams()->GetPathSearchOrder();
    AudioPathSearchOrderType& local = *root.GetAudioKeyMap("en")->GetAudioLookup("k")->GetPathSearchOrder();
    EXPECT_EQ(global.GetPath("2"), "G");
    EXPECT_EQ(global.GetPath(""), "h");
    EXPECT_EQ(global.GetPath("02"), "new");
    EXPECT_EQ(local.GetPath("2"), "l");
    EXPECT_EQ(local.GetPathLength(), 1);
    ASSERT_TRUE(root.UpdateContainedData());
    const std::string text = loaded.Text();
    EXPECT_NE(text.find("<Path Index='2'>G</Path><Path>h</Path>"), std::string::npos) << text;
    EXPECT_NE(text.find("<Path Index='2'>l</Path>"), std::string::npos) << text;
}

/// Names that stand for an attribute in one class and an element in another, or for both in other letters.
struct NameSake {
    const char* type;
    const char* before;
    const char* over;
    const char* merged; ///< as dumped by node
    const char* updated;
};

const NameSake nameSakes[] = {
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
    {"ConstraintType", "<Constraint Type='t'><Type>e</Type></Constraint>",
     "<Constraint><Type>E</Type><MinValue>few</MinValue></Constraint>",
     "<Constraint Type=\"t\"><MinValue>few</MinValue><MaxValue/><MinLength/><MaxLength/><SystemValue/></Constraint>",
     "<Constraint Type='t'><MinValue>few</MinValue><Type>e</Type></Constraint>"},
    {"DBDataType",
     "<DBData Name='d'><Parameters Name='a' Index='9'><Index>1</Index></Parameters><Parameters Name='b'>"
     "<Index>1</Index></Parameters></DBData>",
     "<DBData><Parameters Name='b' Index='8'><Index>2</Index></Parameters></DBData>",
     "<DBData Name=\"d\"><SQLQuery/><QueryType/><OutputDataSize>0</OutputDataSize><UseFullFunctionXMLDataWrapper>false"
     "</UseFullFunctionXMLDataWrapper><Parameters Name=\"a\"><Type/><Direction/><DataSize>0</DataSize><Index>1</Index>"
     "</Parameters><Parameters Name=\"b\"><Type/><Direction/><DataSize>0</DataSize><Index>2</Index></Parameters>"
     "</DBData>",
     "<DBData Name='d'><Parameters Name='a' Index='9'><Index>1</Index></Parameters><Parameters Name='b'>"
     "<Index>2</Index></Parameters></DBData>"},
    {"StructDefaultType", "<DefaultValue Index='1'><ConditionalValue index='2' Index='3'/></DefaultValue>",
     "<DefaultValue Index='4' index='5'><ConditionalValue Index='6' index='2'><ReturnValue>r</ReturnValue>"
     "</ConditionalValue></DefaultValue>",
     "<DefaultValue index=\"5\"><StructureElement/><ConditionalValue index=\"2\"><ReturnValue>r</ReturnValue>"
     "<ReturnQuery/></ConditionalValue></DefaultValue>",
     "<DefaultValue Index='1' index='5'><ConditionalValue index='2' Index='3'><ReturnValue>r</ReturnValue>"
     "</ConditionalValue></DefaultValue>"},
    {"ConfigLevelViewType",
     "<ConfigLevelViewType Level='l'><ViewList><View Name='a' name='b'/></ViewList>"
     "</ConfigLevelViewType>",
     "<ConfigLevelViewType><ViewList><View Name='c' name='b'><Visible>on</Visible></View></ViewList>"
     "</ConfigLevelViewType>",
     "<ConfigLevelViewType Level=\"l\"><ViewList><View name=\"b\"><Lookup/><Visible>true</Visible></View></ViewList>"
     "<ForceSaveRules>true</ForceSaveRules></ConfigLevelViewType>",
     "<ConfigLevelViewType Level='l'><ViewList><View Name='a' name='b'><Visible>true</Visible></View></ViewList>"
     "</ConfigLevelViewType>"},
};

TEST(NameSake, FormAndLettersDecideInEveryOperation) {
    for (const NameSake& row : nameSakes) {
        SCOPED_TRACE(row.type);
        const IssueRecorder recorder;
        Loaded loaded(ContainerCatalog::FindClass(row.type), row.before);
        ASSERT_TRUE(loaded.object->UpdateContainedData());
        EXPECT_EQ(loaded.Text(), row.before);
        ASSERT_TRUE(MergeText(*loaded.object, "F", row.over));
        EXPECT_EQ(DumpedByNode(*loaded.object), row.merged);
        ASSERT_TRUE(loaded.object->UpdateContainedData());
        EXPECT_EQ(loaded.Text(), row.updated);
        EXPECT_TRUE(recorder.issues.empty());
    }
}

TEST(NameSake, TypesOfOneNameDiffer) {
    AddItemResponseType response(false);
    const std::string content = "<Quantity>1.5</Quantity><RestrictedAge> 018 </RestrictedAge>";
    ASSERT_TRUE(LoadText(response, "<AddItemResponse><CouponItem>" + content + "<ItemID>" + content +
                                       "</ItemID></CouponItem><LineItem>" + content + "</LineItem></AddItemResponse>"));
    EXPECT_EQ(response.GetLineItem(0)->GetRestrictedAge(), 18);
    EXPECT_EQ(response.GetLineItem(0)->GetQuantity(), 0) << "no whole number";
    EXPECT_EQ(response.GetCouponItem(0)->GetRestrictedAge(), " 018 ");
    EXPECT_EQ(response.GetCouponItem(0)->GetQuantity(), 0);
    EXPECT_EQ(response.GetCouponItem(0)->GetItemID()->GetQuantity(), 1.5);
    // Nor is an element without the attribute's name the option's key, or an attribute an option's type.
    ConfigurationDefinitionType definition(false);
    const IssueRecorder recorder;
    ASSERT_TRUE(LoadText(definition, "<ConfigurationDefinition><ConfigDef Type='t' Name='n'/><ConfigDef><Name>n</Name>"
                                     "<Type>e</Type></ConfigDef></ConfigurationDefinition>"));
    EXPECT_TRUE(recorder.issues.empty());
    EXPECT_EQ(definition.GetConfigDef("n")->GetType(), "");
    EXPECT_EQ(definition.GetConfigDef("")->GetType(), "e");
}

template <typename Root> constexpr bool isLoader = std::is_base_of_v<StructuralConfigLoader, Root>;
static_assert(isLoader<VendraDBConfigType> && isLoader<TarnLoggingConfigType>);
static_assert(!isLoader<VendraConfigType> && !isLoader<CaptureDocType>);
static_assert(!isLoader<ItemPurchaseTrackingType> && !isLoader<ItemIdentifyEntryType>);
static_assert(!isLoader<LoggingInformationPacketType> && !isLoader<ItemHandlerLogDataType>);
static_assert(!isLoader<SystemsManagementPacketType> && !isLoader<LaneManagerPacketType>);

/// Documents and packets that are no configuration to start from, and one that is.
TEST(Root, IsLoadedFromFileAndPacketMergedAndSavedWithOrWithoutALoader) {
    const struct {
        const char* name;
        const char* content;
        const char* over;
        const char* saved;
    } rows[] = {
        {"VendraConfig", "<Config Name='a'><ConfigType>t</ConfigType></Config>",
         "<Config Name='a'><Description><Doc>d</Doc></Description></Config>",
         "<Config Name=\"a\"><ConfigType>t</ConfigType><Description><Doc>d</Doc></Description></Config>"},
        {"VendraDBConfig", "", "<DBData Name='a'><OutputDataSize>+</OutputDataSize></DBData>",
         "<DBData Name=\"a\"><SQLQuery/><QueryType/><OutputDataSize>0</OutputDataSize><UseFullFunctionXMLDataWrapper>"
         "false</UseFullFunctionXMLDataWrapper></DBData>"},
        {"CaptureDoc", "<Capture><Line>012</Line><Level>CAPTURE_LEVEL_DEBUG</Level></Capture>", "<Capture/>",
         "<Capture><Msg/><Time/><File/><SubSystem/><UniqueName/><Class/><Line>012</Line>"
         "<Level>CAPTURE_LEVEL_DEBUG</Level></Capture><Capture><Msg/><Time/><File/><SubSystem/><UniqueName/><Class/>"
         "<Line/><Level/></Capture>"},
        {"ItemPurchaseTracking", "<ItemIdentifier><ScanDataType>HandKeyed</ScanDataType></ItemIdentifier>",
         "<ItemIdentifier><ScanData>7</ScanData></ItemIdentifier><AddItemRequest/>",
         "<ItemIdentifier><ScanData>7</ScanData><ScanDataLabel/><ScanDataType>HandKeyed</ScanDataType></ItemIdentifier>"
         "<RequestID/><AddItemRequest/>"},
        {"ItemIdentifyEntry", "", "<Description>d</Description>",
         "<ItemProcessingType>NormalItem</ItemProcessingType><SpecialHandlingInstruction>Default"
         "</SpecialHandlingInstruction><Description>d</Description>"},
        {"LoggingInformationPacket", "<Lane>3</Lane>", "<PacketType>SYSTEM_EVENT</PacketType>",
         "<PacketType>SYSTEM_EVENT</PacketType><Lane>3</Lane><TimeStamp/>"},
        {"SystemsManagementPacket", "<PacketType>LANE_ITEM</PacketType>",
         "<PacketType>LANE</PacketType><Availability><AvailabilityState>__CLEAR__</AvailabilityState></Availability>",
         "<PacketType/><Availability><AvailabilityState>__CLEAR__</AvailabilityState><AdditionalInformation/>"
         "</Availability>"},
        {"LaneManagerPacket", "<Action>SHUTDOWN</Action>", "<ExtraData>x</ExtraData>",
         "<Action>SHUTDOWN</Action><ExtraData>x</ExtraData>"},
    };
    const std::string file = (std::filesystem::temp_directory_path() / ("root-" + std::to_string(getpid()))).string();
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const std::string start = "<" + std::string(row.name) + ">";
        const std::string end = "</" + std::string(row.name) + ">";
        const CatalogClass type = ContainerCatalog::FindRoot(row.name);
        ASSERT_TRUE(type);
        EXPECT_EQ(type.IsStructuralConfigLoader(), row.name == std::string("VendraDBConfig"));
        const auto object = type.Create(false);
        std::ofstream(file) << start << row.content << end;
        ASSERT_TRUE(object->LoadFromFile(nullptr, file.c_str(), false)) << object->GetLastError();
        EXPECT_EQ(Samples::Lines(*object), Samples::Lines(*Loaded(type, start + row.content + end).object));
        std::ofstream(file) << start << row.over << end;
        ASSERT_TRUE(object->MergeFromFile(nullptr, file.c_str())) << object->GetLastError();
        ASSERT_TRUE(object->SaveContents(file.c_str())) << object->GetLastError();
        XMLDataWrapper saved;
        ASSERT_TRUE(saved.LoadXMLFile(file.c_str(), true));
        EXPECT_EQ(Compact(saved), start + row.saved + end);
    }
    std::filesystem::remove(file);
}

} // namespace
