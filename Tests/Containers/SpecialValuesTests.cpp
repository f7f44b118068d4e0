// Values with a rule of their own: what stands without an element, words and their numbers, and the one CDATA element.

#include "Containers/EveryClass.h"

#include <sstream>

#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

/// What a value is where no element gave it, for all fields where that is neither empty, 0 nor false, or differs
/// between a new object and a loaded one.
const struct Given {
    const char* type;
    const char* field;
    const char* fresh;  ///< in a new object and after a reset
    const char* loaded; ///< without an element
    const char* empty;  ///< from an empty element
    const char* other;
} givens[] = {
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

TEST(Given, NewLoadedMergedUpdatedDumpedResetAndEmptied) {
    for (const Given& row : givens) {
        SCOPED_TRACE(std::string(row.type) + "/" + row.field);
        const CatalogClass type = ContainerCatalog::FindClass(row.type);
        const CatalogField field = *ContainerCatalog::FindField(type, row.field);
        const std::string name(type.ElementName());
        const std::string without = "<" + name + "/>";
        const auto with = [&](const char* text) {
            return "<" + name + "><" + row.field + ">" + text + "</" + row.field + "></" + name + ">";
        };
        const auto fresh = type.Create(false);
        ASSERT_TRUE(MergeText(*fresh, "F", without));
        EXPECT_EQ(field.GetText(*fresh), row.fresh) << "a merge gives no load text";

        Loaded loaded(type, without);
        TypedDataContainer& object = *loaded.object;
        EXPECT_EQ(field.GetText(object), row.loaded);
        ASSERT_TRUE(object.UpdateContainedData());
        EXPECT_EQ(loaded.Text(), without);
        for (const std::string& dumped : {DumpedByNode(object), DumpedByQuery(object, without)}) {
            XMLDataWrapper read;
            ASSERT_TRUE(read.LoadXMLText(dumped, true));
            EXPECT_TRUE(read.NodeExists(row.field, false));
            EXPECT_EQ(read.GetStringValue(row.field, false), row.loaded);
        }
        ASSERT_TRUE(MergeText(object, "F", with(row.other)) && MergeText(object, "F", without));
        EXPECT_EQ(field.GetText(object), row.other);
        ASSERT_TRUE(object.UpdateContainedData());
        EXPECT_EQ(loaded.Text(), with(row.other));
        object.ResetDataMembers();
        EXPECT_EQ(field.GetText(object), row.fresh);
        ASSERT_TRUE(object.UpdateContainedData());
        EXPECT_EQ(field.GetText(*Loaded(type, loaded.Text()).object), row.fresh) << loaded.Text();

        EXPECT_EQ(field.GetText(*Loaded(type, with("")).object), row.empty);
        ASSERT_TRUE(MergeText(object, "F", with("")));
        EXPECT_EQ(field.GetText(object), row.empty);
    }
}

TEST(Given, AWordIsNumberZeroInANewObjectAndUnknownOnceAnElementGaveNone) {
    ItemIdentifyEntryType entry(false);
    EXPECT_EQ(entry.GetItemProcessingType().Value(), 0);
    ASSERT_TRUE(LoadText(entry, "<ItemIdentifyEntry><ItemProcessingType>normalitem</ItemProcessingType>"
                                "</ItemIdentifyEntry>"));
    EXPECT_EQ(entry.GetItemProcessingType().Value(), ItemProcessingEnum::VALUE_UNKNOWN);
    ThreadChildListType threads(false); // what grows on read is loaded from a template
    EXPECT_EQ(threads.GetDataStorageContainer(0)->GetPersistenceModel(), PersistenceModelEnum::Selective);
}

/// A vocabulary at some spots, written as number and word: its list, the number of a word and the word of a number
/// agree, and both ends are where they should be.
template <typename Vocabulary> void ExpectWords(int first, int last, const char* spots) {
    std::vector<zelString> list{"before"};
    Vocabulary::GetContainedValueList(list);
    ASSERT_EQ(list.size(), static_cast<std::size_t>(last - first + 2)) << spots;
    EXPECT_EQ(list[0], "before");
    EXPECT_EQ(Vocabulary::VALUE_END_OF_LIST, last + 1) << spots;
    std::istringstream pairs(spots);
    std::string word;
    for (int number = 0; pairs >> number >> word;) {
        EXPECT_EQ(Vocabulary(word.c_str()).Value(), number) << word;
        EXPECT_EQ(Vocabulary(number).StringOf(), word);
        EXPECT_EQ(list.at(static_cast<std::size_t>(number - first + 1)), word);
    }
    for (const int number : {first - 1, last + 1}) {
        EXPECT_EQ(Vocabulary(number).StringOf(), "") << spots << number;
    }
}

TEST(Vocabulary, AWordHasItsNumberInEachByItself) {
    ExpectWords<LogIdTypeDefintion>(
        1, 117,
        "1 LOG_TYPE_UNKNOWN 46 LOG_TYPE_OVERRIDE_SECUIRTY_NOT_REJECTED 48 LOG_TYPE_OVERRIDE_NOT_ON_BELT "
        "49 LOG_TYPE_EVENT_CRITICAL_ERROR 83 LOG_TYPE_EVENT_SEC_SCALE_EXCEED_MAX_WEIGHT "
        "117 LOG_TYPE_EVENT_CASH_VOUCHER_PRINTED");
    ExpectWords<SystemEventIdEnum>(
        1, 80, "1 __NEW__ 32 VALIDATE_1_CLEAR_2 41 COUPON_REPORT 63 SHUTDOWN 80 ITEM_HANDLER_TRACE");
    ExpectWords<ScanDataTypeEnum>(1, 31, "1 SCAN_SDT_UPCA 18 SCAN_SDT_Code39 30 HandKeyed 31 SCAN_SDT_UNKNOWN");
    ExpectWords<LaneManagerActionsEnums>(1, 6, "2 SHUTDOWN");
    ExpectWords<ParityType>(0, 2, "0 NONE 2 EVEN");
    ExpectWords<FlowControlType>(1, 3, "1 NONE");
    ExpectWords<MultiBreakDefinition>(1, 3, "1 NONE 3 LONG");
    ExpectWords<AvailabilityStateEnum>(1, 19, "1 __NEW__ 18 __CLEAR__");
    ExpectWords<ItemResultEnum>(1, 6, "1 __NEW__");
    ExpectWords<TenderResultEnum>(1, 3, "1 __NEW__");
    ExpectWords<TransactionResultEnum>(1, 6, "1 __NEW__");
    ExpectWords<TransportMethodDefinition>(1, 6, "6 TRANSPORT_METHOD_HAND_SCANNER_OVERRIDE");
    ExpectWords<OverrideModeDefinition>(1, 4, "4 TRANSPORT_METHOD_HAND_SCANNER_OVERRIDE");
    ExpectWords<SysmgmtLogEventSeverityDefinition>(0, 9, "0 SYSMGMT_CRITICAL 9 SYSMGMT_TRACEPOINT");
    EXPECT_TRUE(StopBitsType("TWO") == 2 && StopBitsType(1) == "" && StopBitsType::VALUE_END_OF_LIST == 3);
    for (const int number :
         {LogIdTypeDefintion("VALUE_UNKNOWN").Value(), LogIdTypeDefintion("LOG_TYPE_UNKNOWN ").Value(),
          LogIdTypeDefintion("LOG_TYPE_OVERRIDE_SECURITY_NOT_REJECTED").Value(),
          ScanDataTypeEnum("SCAN_SDT_CODE39").Value(), ScanDataTypeEnum("SCAN_SDT_UPC").Value(),
          AudioPriorityEnum("").Value()}) {
        EXPECT_EQ(number, -1);
    }
}

std::string Option(const std::string& element) {
    return "<ConfigDef Name=\"n\">" + element + "</ConfigDef>";
}

std::string XmlDefault(const std::string& written) {
    return "<XMLDefaultValue>" + written + "</XMLDefaultValue>";
}

/// The element whose text lives in a CDATA section: what is read, and what an update makes of another text.
const struct CDataCase {
    const char* before; ///< the element's content; null without one
    const char* value;
    const char* set;
    const char* after;
} cdataCases[] = {
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
