// Dumping by query, against the dump by node: both must write the same elements wherever the query finds its nodes.

#include "Containers/EveryClass.h"

#include <algorithm>
#include <set>

#include "Framework/XMLSupport/FaultPoint.h"
#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

/// Containers with their attributes and without their values. `reachable` leaves out what the query dump does not make:
/// children without attributes, and what hangs below them.
std::string Skeleton(TypedDataContainer& object, bool reachable) {
    const std::string name = object.GetContainerName();
    std::string text = "<" + name;
    const std::unique_ptr<ParameterList> attributes(object.GetPLAttributeList());
    for (std::size_t i = 0; i < attributes->size(); ++i) {
        const auto* const attribute = attributes->ItemData(i);
        text += " " + attribute->ElementName + "=\"" + Samples::Escaped(attribute->strValue) + "\"";
    }
    text += ">";
    for (const CatalogField& field : ContainerCatalog::ClassOf(object).Fields()) {
        TypedDataContainer* const child = field.GetChild(object);
        if (child != nullptr && (!reachable || !child->GetAttributeList().empty())) {
            text += Skeleton(*child, reachable);
        }
        for (std::size_t i = 0; field.Entry(object, i) != nullptr; ++i) {
            text += Skeleton(*field.Entry(object, i), reachable);
        }
    }
    return text + "</" + name + ">";
}

/// Tags and texts of a document, whatever their order.
std::multiset<std::string> PartsOf(const std::string& compact) {
    std::multiset<std::string> parts;
    for (std::size_t at = 0, end = 0; at < compact.size(); at = end) {
        end = std::min(compact.find('<', at + 1), compact.size());
        parts.insert(compact.substr(at, end - at));
    }
    return parts;
}

TEST(DumpByQuery, WritesWhatTheDumpByNodeWritesWhereTheElementsStand) {
    ForEveryClass([](CatalogClass type) {
        for (unsigned seed = 1; seed <= 4; ++seed) {
            const auto object = MakeLoaded(type, seed, seed == 1, true);
            const std::vector<std::string> lines = Samples::Lines(*object);
            const std::string dumped = DumpedByQuery(*object, Skeleton(*object, false));
            EXPECT_EQ(PartsOf(dumped), PartsOf(DumpedByNode(*object)));
            EXPECT_EQ(Samples::Lines(*Loaded(type, dumped).object), lines);
            EXPECT_EQ(Samples::Lines(*object), lines);
            EXPECT_EQ(object->GetLastError(), "");
            EXPECT_EQ(PartsOf(DumpedByQuery(*object, "<" + std::string(type.ElementName()) + "/>")),
                      PartsOf(DumpedByQuery(*object, Skeleton(*object, true))))
                << "of a fresh document what has no attributes is left out";
        }
    });
}

TEST(DumpByQuery, PositionsAttributesAndParentsDecideWhetherAContainerIsMade) {
    const struct {
        bool hasAttributes;
        const char* parent;
        int position;
        const char* before;
        const char* after; ///< "*" stands for the fields
    } cases[] = {
        {false, "", -1, "<P/>", "<P/>"},
        {false, "", 7, "<P/>", "<P><X>*</X></P>"}, // the position counts only as a reason to make it
        {false, "", -1, "<X/>", "<X>*</X>"},
        {false, "//P", -1, "<P/>", "<P/>"},
        {false, "//P", 0, "<P><X/></P>", "<P><X/></P>"}, // nothing stands at 0
        {false, "//P", -1, "<P><X/></P>", "<P><X>*</X></P>"},
        {false, "//P", 1, "<P/>", "<P><X>*</X></P>"},
        {false, "//P", 2, "<P><X/></P>", "<P><X/><X>*</X></P>"},
        {true, "", -1, "<P/>", "<P><X Result=\"3\">*</X></P>"},
        {true, "", -1, "<X Result='1'/>", "<X Result=\"3\">*</X>"},
        {true, "//P", -1, "<P/>", "<P><X Result=\"3\">*</X></P>"},
        {true, "//P", 0, "<P/>", "<P/>"},
        {true, "//P", 2, "<P><X/><X Result='9'/></P>", "<P><X/><X Result=\"3\">*</X></P>"},
        {true, "//P/Q", 1, "<P/>", "<P><Q><X Result=\"3\">*</X></Q></P>"},
        {true, "//P", -1, "<P><X Result='3'/><X Result='3'/></P>", "<P><X Result=\"3\">*</X><X Result=\"3\"/></P>"},
    };
    for (const auto& row : cases) {
        StateActionBasicType plain(false); // StateActionResp is derived from it: both write into one element
        StateActionRespType derived(false);
        TypedDataContainer& object = row.hasAttributes ? static_cast<TypedDataContainer&>(derived) : plain;
        ASSERT_TRUE(LoadText(object, "<" + object.GetContainerName() + " Result='3'><ActionRef>r</ActionRef></" +
                                         object.GetContainerName() + ">"));
        object.SetContainerName("X");
        std::string after = row.after;
        if (const std::size_t star = after.find('*'); star != std::string::npos) {
            after.replace(star, 1,
                          row.hasAttributes ? "<ActionRef>r</ActionRef><Unused/>" : "<ActionRef>r</ActionRef>");
        }
        EXPECT_EQ(DumpedByQuery(object, row.before, row.parent, row.position), after)
            << row.parent << " " << row.position << " " << row.before;
    }
}

TEST(DumpByQuery, MergeAttributesStandBehindIdentityAttributesAndGoToAllBelow) {
    LoadConfigType object(false);
    ASSERT_TRUE(LoadText(object, "<LoadConfig/>"));
    ASSERT_TRUE(MergeText(object, "F",
                          "<LoadConfig><ThreadChildList UniqueName='A'><ChildThread UniqueName='T'/>"
                          "<DataStorageContainer/></ThreadChildList></LoadConfig>"));
    ASSERT_TRUE(MergeText(object, "G", "<LoadConfig><ThreadChildList UniqueName='A'/></LoadConfig>"));
    const std::string thread = "ChildThread[@ConfigLogic=''  and @ConfigValue='' ]";
    for (const bool include : {false, true}) {
        FullFunctionXMLDataWrapper byQuery;
        FullFunctionXMLDataWrapper byNode;
        ASSERT_TRUE(byQuery.CreateOutputDocument("LoadConfig"));
        ASSERT_TRUE(byNode.CreateOutputDocument("LoadConfig"));
        DOMNode* passed = nullptr;
        EXPECT_TRUE(object.DumpMergeContents("", &byQuery, -1, include));
        EXPECT_TRUE(object.DumpMergeContentsII(nullptr, &byNode, passed, include));
        EXPECT_EQ(byQuery.GetStringValue("ThreadChildList/@FeatureID", false), "G"); // whatever the root was given
        EXPECT_EQ(byQuery.NodeExists("@FeatureID", false), false);                   // it has no attributes of its own
        EXPECT_EQ(byQuery.NodeExists("ThreadChildList/DataStorageContainer[1]/@FeatureID", false), false);
        EXPECT_EQ(byNode.NodeExists("ThreadChildList/@FeatureID", false), include);
        EXPECT_EQ(byNode.NodeExists("@FeatureID", false), include);
        EXPECT_TRUE(byQuery.NodeExists("ThreadChildList/" + thread, false));
    }
}

TEST(DumpByQuery, AwkwardValuesComeThroughAndNeverReachAnotherNode) {
    const struct {
        const char* value;
        bool asName;
        bool asKey;
    } cases[] = {
        {"it's", true, true},
        {"''", true, false},
        {"'tis", true, true},
        {"\"", true, true},
        {"\"q\" <&> ]]>", true, false},
        {"]/x[1]", true, true},
        {"a' ]/b[@c='", false, true}, // reads as two steps
        {"", true, true},
        {" \xC3\xA9\xE3\x81\x82 ", true, true},
        {"x' and @ConfigValue='y", false, true}, // reads as two conditions
        {"\x01", false, false},
    };
    for (const auto& row : cases) {
        LoadConfigType object(false);
        ASSERT_TRUE(LoadText(object, "<LoadConfig><ThreadChildList/><ThreadChildList UniqueName='x'/></LoadConfig>"));
        ThreadChildListType& list = *object.GetThreadChildList(0);
        list.SetUniqueName(row.value);
        auto* const thread = new ChildThreadType(true);
        thread->SetUniqueName(row.value);
        thread->SetLibraryPath("lib");
        list.AddNewChildThread(thread, row.value);
        FullFunctionXMLDataWrapper output;
        ASSERT_TRUE(output.CreateOutputDocument("LoadConfig"));
        EXPECT_TRUE(object.DumpMergeContents("", &output, -1, false));
        EXPECT_EQ(output.GetLastError().empty(), row.asName) << row.value << output.GetLastError();
        const std::string name = Samples::Escaped(row.value);
        const std::string other = "<ThreadChildList UniqueName=\"x\"/>";
        const std::string both = "<ThreadChildList UniqueName=\"" + name + "\"><ChildThread UniqueName=\"" + name +
                                 "\" ConfigValue='' ConfigLogic=''/></ThreadChildList>";
        const std::string expected = "<LoadConfig>" + (row.asName ? both : "") + other + "</LoadConfig>";
        EXPECT_EQ(PartsOf(DumpedByQuery(object, "<LoadConfig/>")), PartsOf(DumpedByQuery(object, expected)));

        StateProcessingRootType root(false);
        ASSERT_TRUE(LoadText(root, "<StateProcessingRoot Version='1'/>"));
        root.AddRevisionHistory("text", row.value);
        FullFunctionXMLDataWrapper history;
        ASSERT_TRUE(history.CreateOutputDocument("StateProcessingRoot"));
        EXPECT_TRUE(root.DumpMergeContents("", &history, -1, false)); // a keyed text that fails is no failure
        EXPECT_EQ(history.GetLastError().empty(), row.asKey) << row.value << history.GetLastError();
        EXPECT_EQ(history.GetStringValue("RevisionHistory/@fileName", false), row.asKey ? row.value : "");
        EXPECT_EQ(history.GetStringValue("RevisionHistory", false), row.asKey ? "text" : "");
    }
}

TEST(DumpByQuery, KeyedTextsThatStandThereAreWrittenOver) {
    StateProcessingRootType root(false);
    ASSERT_TRUE(LoadText(root,
                         "<StateProcessingRoot Version='1'><RevisionHistory fileName='a'>new</RevisionHistory>"
                         "<RevisionHistory fileName='b'>\xC3\xA9&lt;]]&gt;</RevisionHistory></StateProcessingRoot>"));
    EXPECT_EQ(DumpedByQuery(root, "<StateProcessingRoot Version='0'><RevisionHistory fileName='a'>old<!--c--> text"
                                  "</RevisionHistory></StateProcessingRoot>"),
              "<StateProcessingRoot Version=\"1\"><RevisionHistory fileName=\"a\">new<!--c--></RevisionHistory>"
              "<RevisionHistory fileName=\"b\">\xC3\xA9&lt;]]&gt;</RevisionHistory></StateProcessingRoot>");
}

TEST(DumpByQuery, WhatFailsIsNamedAndTheRestIsWritten) {
    LoadConfigType object(false);
    ASSERT_TRUE(LoadText(object, "<LoadConfig><ThreadChildList UniqueName='A'><DataStorageContainer/>"
                                 "<DataStorageContainer/><DataStorageContainer/></ThreadChildList></LoadConfig>"));
    ThreadChildListType& list = *object.GetThreadChildList(0);
    list.GetDataStorageContainer(0)->SetStorageName("one");
    list.GetDataStorageContainer(1)->SetStorageName("\x01");
    list.GetDataStorageContainer(1)->SetAltLoadPath("rest of two");
    list.GetDataStorageContainer(2)->SetStorageName("three");
    list.AddNewDataStorageContainer(nullptr);
    FullFunctionXMLDataWrapper output;
    ASSERT_TRUE(output.CreateOutputDocument("LoadConfig"));
    EXPECT_FALSE(object.DumpMergeContents("", &output, -1, false));
    EXPECT_NE(object.GetLastError().find("DataStorageContainer: the text of StorageName"), std::string::npos)
        << object.GetLastError();
    // The third takes the position of the second, which did not count.
    EXPECT_EQ(output.GetStringValue("ThreadChildList/DataStorageContainer[2]/AltLoadPath[1]", false), "rest of two");
    EXPECT_EQ(output.GetStringValue("ThreadChildList/DataStorageContainer[1]/StorageName", false), "one");
    EXPECT_EQ(output.GetStringValue("ThreadChildList/DataStorageContainer[2]/StorageName", false), "three");
    EXPECT_FALSE(output.NodeExists("ThreadChildList/DataStorageContainer[3]", false));

    FullFunctionXMLDataWrapper none;
    DOMNode* passed = nullptr;
    for (FullFunctionXMLDataWrapper* const nowhere : {&none, static_cast<FullFunctionXMLDataWrapper*>(nullptr)}) {
        EXPECT_FALSE(object.DumpMergeContents("", nowhere, -1, false));
        EXPECT_NE(object.GetLastError().find("no output document"), std::string::npos) << object.GetLastError();
        EXPECT_FALSE(object.DumpMergeContentsII(nullptr, nowhere, passed, false));
        EXPECT_NE(object.GetLastError().find("no output document"), std::string::npos) << object.GetLastError();
    }
}

} // namespace
