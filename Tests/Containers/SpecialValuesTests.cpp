// Values with a rule of their own: what stands without an element, words and their numbers, and the one CDATA element.

#include "Containers/EveryClass.h"

#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

/// What a value is where no element gave it, for all fields where that is neither empty, 0 nor false, or differs
/// between a new object and a loaded one.
struct Given {
    const char* type;
    const char* field;
    const char* fresh;  ///< in a new object and after a reset
    const char* loaded; ///< without an element
    const char* empty;  ///< from an empty element
    const char* other;
};

const Given givens[] = {
    {"StructureTransformDefType", "CharBooleanTrue", "Y", "Y", "", "true"},
    {"StructureTransformDefType", "CharBooleanFalse", "N", "N", "", " n "},
    {"ConfigLevelViewType", "ForceSaveRules", "true", "true", "false", "false"},
    {"AudioLookupType", "AllowAbort", "true", "true", "false", "false"},
    {"CaptureFileConfigType", "XmlOutputFormat", "true", "true", "false", "false"},
    {"CaptureFileConfigType", "RootElement", "CaptureDoc", "CaptureDoc", "", "r"},
    {"CaptureFileConfigType", "MaxLines", "10000", "10000", "0", "-1"},
    {"CaptureFileConfigType", "MaxFilesPerTransaction", "100", "100", "0", "1"},
    {"CaptureFileConfigType", "TransactionsOnDisk", "5", "5", "0", "1"},
    {"CaptureConfigType", "WriteBufferSize", "100", "100", "0", "1"},
    {"CaptureConfigType", "FlushTimerDelay", "3000", "3000", "0", "1"},
    {"CaptureConfigType", "MaxTransactions", "100", "100", "0", "1"},
    {"CaptureConfigType", "DuplicateExtractTimeout", "60000", "60000", "0", "1"},
    {"CommParametersType", "MaxBufferSize", "16384", "16384", "0", "1"},
    {"SerialParametersType", "BaudRate", "9600", "9600", "0", "300"},
    {"SerialParametersType", "DataBits", "8", "8", "0", "7"},
    {"SerialParametersType", "Parity", "NONE", "EVEN", "", "ODD"},
    {"SerialParametersType", "StopBits", "ONE", "ONE", "", "TWO"},
    {"SerialParametersType", "Control", "", "NONE", "", "HARDWARE"},
    {"AudioLookupType", "Priority", "", "low", "", "high"},
    {"ItemIdentifyEntryType", "ItemProcessingType", "", "NormalItem", "", "Coupon"},
    {"ItemIdentifyEntryType", "SpecialHandlingInstruction", "", "Default", "", "HoldCoupon"},
    {"DataStorageContainerType", "PersistenceModel", "", "Selective", "", "Never"},
    {"ChildThreadType", "ThreadPriority", "", "", "", "PRIORITY_LOW"},
};

TEST(Given, NewLoadedEmptiedMergedUpdatedDumpedAndReset) {
    for (const Given& row : givens) {
        SCOPED_TRACE(std::string(row.type) + "/" + row.field);
        const CatalogClass type = ContainerCatalog::FindClass(row.type);
        ASSERT_TRUE(type);
        const auto found = ContainerCatalog::FindField(type, row.field);
        ASSERT_TRUE(found);
        const CatalogField& field = *found;
        const std::string name(type.ElementName());
        const auto document = [&](const std::string& content) {
            return "<" + name + ">" + content + "</" + name + ">";
        };
        const auto element = [&](const std::string& text) {
            return "<" + std::string(row.field) + ">" + text + "</" + row.field + ">";
        };
        const std::string without = "<" + name + "/>";

        const auto fresh = type.Create(false);
        EXPECT_EQ(field.GetText(*fresh), row.fresh);
        ASSERT_TRUE(MergeText(*fresh, "F", without));
        EXPECT_EQ(field.GetText(*fresh), row.fresh) << "a merge gives no load text";

        Loaded loaded(type, without);
        EXPECT_EQ(field.GetText(*loaded.object), row.loaded);
        ASSERT_TRUE(field.WriteBack(*loaded.object) && loaded.object->UpdateContainedData());
        EXPECT_EQ(loaded.Text(), without);
        const std::unique_ptr<XMLDataWrapper> dumped(loaded.object->BuildAndReturnDataContent());
        EXPECT_TRUE(dumped->NodeExists(row.field, false));
        EXPECT_EQ(dumped->GetStringValue(row.field, false), row.loaded);
        EXPECT_NE(DumpedByQuery(*loaded.object, without)
                      .find(*row.loaded == 0 ? "<" + std::string(row.field) + "/>" : element(row.loaded)),
                  std::string::npos);

        ASSERT_TRUE(MergeText(*loaded.object, "F", document(element(row.other))));
        ASSERT_TRUE(MergeText(*loaded.object, "F", without));
        EXPECT_EQ(field.GetText(*loaded.object), row.other);
        ASSERT_TRUE(loaded.object->UpdateContainedData());
        EXPECT_EQ(loaded.Text(), document(element(row.other)));
        loaded.object->ResetDataMembers();
        EXPECT_EQ(field.GetText(*loaded.object), row.fresh);
        ASSERT_TRUE(loaded.object->UpdateContainedData());
        EXPECT_EQ(field.GetText(*Loaded(type, loaded.Text()).object), row.fresh) << loaded.Text();

        EXPECT_EQ(field.GetText(*Loaded(type, document(element(""))).object), row.empty);
        ASSERT_TRUE(MergeText(*loaded.object, "F", document(element(""))));
        EXPECT_EQ(field.GetText(*loaded.object), row.empty);
    }
}

TEST(Given, WhatAMergeOrATemplateCreatesIsLoaded) {
    CommParametersType parameters(false);
    ASSERT_TRUE(LoadText(parameters, "<CommParameters/>"));
    ASSERT_TRUE(MergeText(parameters, "F", "<CommParameters><SerialParameters/></CommParameters>"));
    EXPECT_EQ(parameters.GetSerialParameters()->GetParity(), ParityType::EVEN);
    parameters.SetSerialParameters(new SerialParametersType(false));
    EXPECT_EQ(parameters.GetSerialParameters()->GetParity(), ParityType::NONE);
    AudioKeyMapType keys(false);
    ASSERT_TRUE(LoadText(keys, "<AudioKeyMap/>"));
    ASSERT_TRUE(MergeText(keys, "F", "<AudioKeyMap><AudioLookup key='k'/></AudioKeyMap>"));
    EXPECT_EQ(keys.GetAudioLookup("k")->GetPriority(), AudioPriorityEnum::low);
    ThreadChildListType threads(false);
    EXPECT_EQ(threads.GetDataStorageContainer(0)->GetPersistenceModel(), PersistenceModelEnum::Selective);
}

TEST(Given, NumberZeroIsNoWordThatIsUnknown) {
    EXPECT_EQ(AudioLookupType(false).GetPriority().Value(), 0);
    EXPECT_EQ(SerialParametersType(false).GetStopBits().Value(), 0);
    ItemIdentifyEntryType entry(false);
    EXPECT_EQ(entry.GetItemProcessingType().Value(), 0);
    ASSERT_TRUE(LoadText(entry, "<ItemIdentifyEntry><ItemProcessingType>normalitem</ItemProcessingType>"
                                "</ItemIdentifyEntry>"));
    EXPECT_EQ(entry.GetItemProcessingType().Value(), ItemProcessingEnum::VALUE_UNKNOWN);
    EXPECT_EQ(entry.GetSpecialHandlingInstruction().Value(), 1);
    entry.ResetDataMembers();
    EXPECT_EQ(entry.GetItemProcessingType().Value(), 0);
}

/// Spots of a vocabulary: the list, the number of a word and the word of a number agree, and both ends are where they
/// should be.
template <typename Vocabulary>
void ExpectSpots(int first, int last, std::initializer_list<std::pair<int, const char*>> spots) {
    std::vector<zelString> list{"before"};
    Vocabulary::GetContainedValueList(list);
    ASSERT_EQ(list.size(), static_cast<std::size_t>(last - first + 2));
    EXPECT_EQ(list[0], "before");
    EXPECT_EQ(Vocabulary::VALUE_END_OF_LIST, last + 1);
    for (const auto& [number, word] : spots) {
        EXPECT_EQ(Vocabulary(word).Value(), number) << word;
        EXPECT_EQ(Vocabulary(number).StringOf(), word);
        EXPECT_EQ(list.at(static_cast<std::size_t>(number - first + 1)), word);
    }
    for (const int number : {first - 1, last + 1, -1}) {
        EXPECT_EQ(Vocabulary(number).StringOf(), "") << number;
        EXPECT_EQ(Vocabulary(number).Value(), number);
    }
}

TEST(Vocabulary, LongOnesHaveTheirWordsAtTheirNumbers) {
    ExpectSpots<LogIdTypeDefintion>(1, 117,
                                    {{1, "LOG_TYPE_UNKNOWN"},
                                     {46, "LOG_TYPE_OVERRIDE_SECUIRTY_NOT_REJECTED"},
                                     {48, "LOG_TYPE_OVERRIDE_NOT_ON_BELT"},
                                     {49, "LOG_TYPE_EVENT_CRITICAL_ERROR"},
                                     {83, "LOG_TYPE_EVENT_SEC_SCALE_EXCEED_MAX_WEIGHT"},
                                     {117, "LOG_TYPE_EVENT_CASH_VOUCHER_PRINTED"}});
    ExpectSpots<SystemEventIdEnum>(1, 80,
                                   {{1, "__NEW__"},
                                    {32, "VALIDATE_1_CLEAR_2"},
                                    {41, "COUPON_REPORT"},
                                    {63, "SHUTDOWN"},
                                    {80, "ITEM_HANDLER_TRACE"}});
    ExpectSpots<ScanDataTypeEnum>(
        1, 31, {{1, "SCAN_SDT_UPCA"}, {18, "SCAN_SDT_Code39"}, {30, "HandKeyed"}, {31, "SCAN_SDT_UNKNOWN"}});
    ExpectSpots<SysmgmtLogEventSeverityDefinition>(0, 9, {{0, "SYSMGMT_CRITICAL"}, {9, "SYSMGMT_TRACEPOINT"}});
}

TEST(Vocabulary, OneWordHasAnotherNumberInAnotherVocabulary) {
    const std::pair<int, int> pairs[] = {
        {ParityType("NONE").Value(), 0},
        {FlowControlType("NONE").Value(), 1},
        {MultiBreakDefinition("NONE").Value(), 1},
        {AvailabilityStateEnum("__NEW__").Value(), 1},
        {ItemResultEnum("__NEW__").Value(), 1},
        {TenderResultEnum("__NEW__").Value(), 1},
        {TransactionResultEnum("__NEW__").Value(), 1},
        {LaneManagerActionsEnums("SHUTDOWN").Value(), 2},
        {TransportMethodDefinition("TRANSPORT_METHOD_HAND_SCANNER_OVERRIDE").Value(), 6},
        {OverrideModeDefinition("TRANSPORT_METHOD_HAND_SCANNER_OVERRIDE").Value(), 4},
        {StopBitsType("TWO").Value(), 2},
        {LogIdTypeDefintion("VALUE_UNKNOWN").Value(), -1},
        {LogIdTypeDefintion("LOG_TYPE_OVERRIDE_SECURITY_NOT_REJECTED").Value(), -1},
        {ScanDataTypeEnum("SCAN_SDT_CODE39").Value(), -1},
        {ScanDataTypeEnum("SCAN_SDT_UPC").Value(), -1},
        {ScanDataTypeEnum("SCAN_SDT_UPCA ").Value(), -1},
        {AudioPriorityEnum("LOW").Value(), -1},
        {AudioPriorityEnum("").Value(), -1},
    };
    for (std::size_t i = 0; i < std::size(pairs); ++i) {
        EXPECT_EQ(pairs[i].first, pairs[i].second) << "pair " << i;
    }
    EXPECT_EQ(StopBitsType(1).StringOf(), "");
    EXPECT_TRUE(AudioPriorityEnum(7) == "" && !(AudioPriorityEnum(1) == "LOW"));

    Loaded line(ContainerCatalog::FindClass("SerialParametersType"),
                "<SerialParameters><Parity>NONE</Parity><Control>NONE</Control></SerialParameters>");
    const auto& serial = dynamic_cast<SerialParametersType&>(*line.object);
    EXPECT_EQ(const_cast<SerialParametersType&>(serial).GetParity().Value(), 0);
    EXPECT_EQ(const_cast<SerialParametersType&>(serial).GetControl().Value(), 1);
    SystemEventType event(false);
    ASSERT_TRUE(LoadText(event, "<SystemEvent><LogId>LOG_TYPE_UNKNOWN</LogId><OverrideMode>"
                                "TRANSPORT_METHOD_HAND_SCANNER_OVERRIDE</OverrideMode></SystemEvent>"));
    EXPECT_EQ(event.GetLogId().Value(), 1);
    EXPECT_EQ(event.GetOverrideMode().Value(), 4);
}

std::string Option(const std::string& element) {
    return "<ConfigDef Name=\"n\">" + element + "</ConfigDef>";
}

std::string XmlDefault(const std::string& written) {
    return "<XMLDefaultValue>" + written + "</XMLDefaultValue>";
}

/// The element whose text lives in a CDATA section: what is read, and what an update makes of another text.
struct CDataCase {
    const char* before; ///< the element's content; null without one
    const char* value;
    const char* set;
    const char* after;
};

const CDataCase cdataCases[] = {
    {"<![CDATA[<a/>]]>", "<a/>", "<b>&amp;</b>", "<![CDATA[<b>&amp;</b>]]>"},
    {"<![CDATA[a]]>", "a", "x]]>y", "<![CDATA[x]]]]><![CDATA[>y]]>"},
    {"<![CDATA[a]]>", "a", "", "<![CDATA[]]>"},
    {" x <![CDATA[a]]> &lt;<!--c--> <![CDATA[b]]> y ", "a < b", "new", " x <![CDATA[new]]><!--c--> y "},
    {"plain &amp; text", "plain & text", "<n/>", "<![CDATA[<n/>]]>"},
    {"", "", "n", "<![CDATA[n]]>"},
    {"<![CDATA[]]>", "", "n", "<![CDATA[n]]>"},
    {nullptr, "", "n", "<![CDATA[n]]>"},
};

TEST(CData, IsReadFromItsSectionAndWrittenBackIntoIt) {
    const CatalogClass type = ContainerCatalog::FindClass("OptionsConfigDefType");
    for (const CDataCase& row : cdataCases) {
        const std::string xml = Option(row.before == nullptr ? "" : XmlDefault(row.before));
        SCOPED_TRACE(xml);
        Loaded loaded(type, xml);
        auto& option = dynamic_cast<OptionsConfigDefType&>(*loaded.object);
        EXPECT_EQ(option.GetXMLDefaultValue(), row.value);
        ASSERT_TRUE(option.UpdateContainedData());
        EXPECT_EQ(loaded.Text(), xml);
        option.SetXMLDefaultValue(row.set);
        ASSERT_TRUE(option.UpdateContainedData());
        EXPECT_EQ(loaded.Text(), Option(XmlDefault(row.after)));
        Loaded again(type, loaded.Text());
        EXPECT_EQ(dynamic_cast<OptionsConfigDefType&>(*again.object).GetXMLDefaultValue(), row.set);
        option.SetXMLDefaultValue(row.value);
        ASSERT_TRUE(option.UpdateContainedData());
        EXPECT_EQ(loaded.Text(), xml) << "taken back";

        OptionsConfigDefType merged(false);
        ASSERT_TRUE(LoadText(merged, Option(XmlDefault("<![CDATA[base]]>"))));
        ASSERT_TRUE(MergeText(merged, "F", xml));
        EXPECT_EQ(merged.GetXMLDefaultValue(), row.before == nullptr ? "base" : row.value);
    }
}

TEST(CData, IsDumpedAsASectionWhereTheSameCharactersElsewhereAreText) {
    OptionsConfigDefType option(false);
    const std::string mixed = "x<![CDATA[<a> & ]]]]><![CDATA[> b]]>";
    ASSERT_TRUE(LoadText(option, Option("<DefaultValue>" + mixed + "</DefaultValue>" + XmlDefault(mixed))));
    EXPECT_EQ(option.GetXMLDefaultValue(), "<a> & ]]> b");
    EXPECT_EQ(option.GetDefaultValue(), "x<a> & ]]> b");
    option.SetDefaultValue("<a> & ]]> b");
    ParameterList properties;
    option.GetProperties(properties);
    ASSERT_GE(properties.size(), 5U);
    EXPECT_EQ(properties.ItemData(4)->ElementName, "XMLDefaultValue");
    EXPECT_EQ(properties.ItemData(4)->strValue, "<a> & ]]> b");
    const std::string expected =
        "<DefaultValue>&lt;a&gt; &amp; ]]&gt; b</DefaultValue>" + XmlDefault("<![CDATA[<a> & ]]]]><![CDATA[> b]]>");
    for (const std::string& text : {DumpedByNode(option), DumpedByQuery(option, Option(""))}) {
        EXPECT_NE(text.find(expected), std::string::npos) << text;
    }
}

} // namespace
