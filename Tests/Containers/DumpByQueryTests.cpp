// Dumping by query, against the dump by node: both must write the same elements wherever the query finds its nodes.

#include "Containers/EveryClass.h"

#include <algorithm>
#include <map>

#include <xercesc/dom/DOM.hpp>

#include "Framework/XMLSupport/FaultPoint.h"
#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

using xercesc::DOMElement;

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

/// The element with its attributes (the DOM sorts them) and its children, those of one name together.
std::string Canonical(const DOMElement& element) {
    std::string text = "<" + zelString(element.getNodeName());
    const xercesc::DOMNamedNodeMap& attributes = *element.getAttributes();
    for (XMLSize_t i = 0; i < attributes.getLength(); ++i) {
        text +=
            " " + zelString(attributes.item(i)->getNodeName()) + "=" + zelString(attributes.item(i)->getNodeValue());
    }
    text += ">";
    std::map<std::string, std::string> children;
    for (DOMNode* child = element.getFirstChild(); child != nullptr; child = child->getNextSibling()) {
        if (child->getNodeType() == DOMNode::ELEMENT_NODE) {
            children[zelString(child->getNodeName())] += Canonical(static_cast<DOMElement&>(*child));
        } else {
            text += zelString(child->getNodeValue());
        }
    }
    for (const auto& [name, elements] : children) {
        text += elements + "\n";
    }
    return text + "</>";
}

std::string Canonical(XMLDataWrapper& wrapper) {
    return Canonical(static_cast<DOMElement&>(*wrapper.GetDOMNode(true, false)));
}

void Prepare(FullFunctionXMLDataWrapper& output, const std::string& xml) {
    ASSERT_TRUE(output.LoadXMLText(xml, false)) << output.GetLastError();
    ASSERT_NE(output.GetOutputDocument(), nullptr);
}

std::string DumpedInto(TypedDataContainer& object, const std::string& xml) {
    FullFunctionXMLDataWrapper output;
    Prepare(output, xml);
    EXPECT_TRUE(object.DumpMergeContents("", &output, -1, false)) << object.GetLastError();
    return Canonical(output);
}

TEST(DumpByQuery, WritesWhatTheDumpByNodeWritesWhereTheElementsStand) {
    ForEveryClass([](CatalogClass type) {
        for (unsigned seed = 1; seed <= 4; ++seed) {
            const auto object = MakeLoaded(type, seed, seed == 1, true);
            const std::vector<std::string> lines = Samples::Lines(*object);
            FullFunctionXMLDataWrapper byNode;
            ASSERT_TRUE(byNode.CreateOutputDocument(std::string(type.ElementName()).c_str()));
            DOMNode* passed = nullptr;
            ASSERT_TRUE(object->DumpMergeContentsII(nullptr, &byNode, passed, false)) << object->GetLastError();
            EXPECT_EQ(DumpedInto(*object, Skeleton(*object, false)), Canonical(byNode)) << byNode.GetXMLText();
            EXPECT_EQ(Samples::Lines(*object), lines);
            EXPECT_EQ(object->GetLastError(), "");
            EXPECT_EQ(DumpedInto(*object, "<" + std::string(type.ElementName()) + "/>"),
                      DumpedInto(*object, Skeleton(*object, true)))
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
        {false, "", -1, "<P/>", "<P></>"},
        {false, "", 7, "<P/>", "<P><X>*</>\n</>"}, // the position counts only as a reason to make it
        {false, "", -1, "<X/>", "<X>*</>"},
        {false, "//P", -1, "<P/>", "<P></>"},
        {false, "//P", 0, "<P><X/></P>", "<P><X></>\n</>"}, // nothing stands at 0
        {false, "//P", -1, "<P><X/></P>", "<P><X>*</>\n</>"},
        {false, "//P", 1, "<P/>", "<P><X>*</>\n</>"},
        {false, "//P", 2, "<P><X/></P>", "<P><X></><X>*</>\n</>"},
        {true, "", -1, "<P/>", "<P><X Result=3>*</>\n</>"},
        {true, "", -1, "<X Result='1'/>", "<X Result=3>*</>"},
        {true, "//P", -1, "<P/>", "<P><X Result=3>*</>\n</>"},
        {true, "//P", 0, "<P/>", "<P></>"},
        {true, "//P", 2, "<P><X/><X Result='9'/></P>", "<P><X></><X Result=3>*</>\n</>"},
        {true, "//P/Q", 1, "<P/>", "<P><Q><X Result=3>*</>\n</>\n</>"},
        {true, "//P", -1, "<P><X Result='3'/><X Result='3'/></P>", "<P><X Result=3>*</><X Result=3></>\n</>"},
    };
    for (const auto& row : cases) {
        StateActionBasicType plain(false); // StateActionResp is derived from it: both write into one element
        StateActionRespType derived(false);
        TypedDataContainer& object = row.hasAttributes ? static_cast<TypedDataContainer&>(derived) : plain;
        ASSERT_TRUE(LoadText(object, "<" + object.GetContainerName() + " Result='3'><ActionRef>r</ActionRef></" +
                                         object.GetContainerName() + ">"));
        object.SetContainerName("X");
        FullFunctionXMLDataWrapper output;
        Prepare(output, row.before);
        EXPECT_TRUE(object.DumpMergeContents(row.parent, &output, row.position, false));
        std::string after = row.after;
        if (const std::size_t star = after.find('*'); star != std::string::npos) {
            after.replace(star, 1, row.hasAttributes ? "<ActionRef>r</>\n<Unused></>\n" : "<ActionRef>r</>\n");
        }
        EXPECT_EQ(Canonical(output), after) << row.parent << " " << row.position << " " << row.before;
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
        FullFunctionXMLDataWrapper expected;
        Prepare(expected, "<LoadConfig>" +
                              (row.asName ? "<ThreadChildList UniqueName=\"" + name + "\"><ChildThread UniqueName=\"" +
                                                name + "\" ConfigValue='' ConfigLogic=''/></ThreadChildList>"
                                          : std::string()) +
                              other + "</LoadConfig>");
        EXPECT_EQ(DumpedInto(object, "<LoadConfig/>"), DumpedInto(object, expected.GetXMLText()));

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
    EXPECT_EQ(DumpedInto(root, "<StateProcessingRoot Version='0'><RevisionHistory fileName='a'>old<!--c--> text"
                               "</RevisionHistory></StateProcessingRoot>"),
              "<StateProcessingRoot Version=1><RevisionHistory fileName=a>newc</>"
              "<RevisionHistory fileName=b>\xC3\xA9<]]></>\n</>");
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
    const std::string dumped = Canonical(output);
    EXPECT_NE(dumped.find("<AltLoadPath>rest of two</><AltLoadPath></>"), std::string::npos) << dumped;
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
