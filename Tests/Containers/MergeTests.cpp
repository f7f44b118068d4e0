// Merging with the default action, for every class: what the source names is taken over, the rest stays. The other
// actions stand in MergeControlTests.cpp.

#include "Containers/EveryClass.h"

#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

TEST(Merge, EmptySourceChangesNothingAndUnloadedObjectBecomesValid) {
    ForEveryClass([](CatalogClass type) {
        const std::string name(type.ElementName());
        const auto object = MakeLoaded(type, 3);
        const std::vector<std::string> before = Samples::Lines(*object);
        ASSERT_TRUE(MergeText(*object, "F", "<" + name + "><Unknown/></" + name + ">"));
        EXPECT_EQ(Samples::Lines(*object), before);
        const auto fresh = type.Create(false);
        ASSERT_TRUE(MergeText(*fresh, "F", "<" + name + "/>"));
        EXPECT_TRUE(fresh->Valid());
        EXPECT_EQ(fresh->GetContainedDataPtr(), nullptr);
    });
}

TEST(Merge, NumberedListTakesIndexOrPosition) {
    StateActionBasicType object(false);
    ASSERT_TRUE(LoadText(object, "<StateActionBasic><Doc>a</Doc><Doc>b</Doc></StateActionBasic>"));
    ASSERT_TRUE(
        MergeText(object, "F", "<StateActionBasic><Doc>A</Doc><Doc Index='7'>g</Doc><Doc>c</Doc></StateActionBasic>"));
    EXPECT_EQ(object.GetDoc("1"), "A");
    EXPECT_EQ(object.GetDoc("2"), "b");
    EXPECT_EQ(object.GetDoc("7"), "g");
    EXPECT_EQ(object.GetDoc("3"), "c");
    EXPECT_EQ(object.GetDocLength(), 4);
}

TEST(Merge, NestedObjectMergesFromWhereToldAndKeepsItsFlag) {
    StateProcessingRootType root(false);
    ASSERT_TRUE(LoadText(root, "<StateProcessingRoot><StateTable Name='T' InitialState='a'/></StateProcessingRoot>"));
    StateTableType& table = *root.GetStateTable();
    XMLDataWrapper source;
    ASSERT_TRUE(
        source.LoadXMLText("<Out><Far><StateTable InitialState='far'/></Far><X InitialState='x'/></Out>", false));
    ASSERT_NE(source.SelectNode("X", false), nullptr);
    EXPECT_TRUE(table.MergeFromDataPacket(nullptr, "F", &source, false)); // by name, wherever the source stands
    EXPECT_EQ(table.GetInitialState(), "far");
    EXPECT_EQ(source.GetStoredQuery(), "//StateTable");
    source.SetCurrentNode(nullptr);
    ASSERT_NE(source.SelectNode("X", false), nullptr);
    source.SetStoredQuery("//Out");
    EXPECT_TRUE(table.MergeFromDataPacket(nullptr, "F", &source, true)); // from the node it stands on
    EXPECT_EQ(table.GetInitialState(), "x");
    EXPECT_EQ(source.GetStoredQuery(), "//Out");
    source.SetStoredQuery("");
    EXPECT_TRUE(table.MergeFromDataPacket(nullptr, "F", &source, true));
    EXPECT_EQ(source.GetStoredQuery(), "/StateTable"); // there was nothing to put back
    EXPECT_EQ(table.GetName(), "T");
}

TEST(Merge, SourceIsLeftInOrder) {
    LoadConfigType root(false);
    ASSERT_TRUE(LoadText(root, "<LoadConfig><ThreadChildList UniqueName='A'/></LoadConfig>"));
    XMLDataWrapper source;
    ASSERT_TRUE(source.LoadXMLText("<LoadConfig><A/></LoadConfig>", false));
    const zelString list = "//LoadConfig/ThreadChildList";
    ASSERT_TRUE(source.LoadNodeList("A", list, 0)); // where the walk keeps its own, which is not in this source
    ASSERT_TRUE(source.LoadNodeList("A", "other", 0));
    EXPECT_TRUE(root.MergeFromDataPacket(nullptr, "F", &source, false));
    EXPECT_EQ(source.GetNodeListLength(list), 0);
    EXPECT_EQ(source.GetNodeListLength("other"), 1);
    // Parent and class walk one after the other; each puts back what it found.
    ActionItemType item(false);
    ASSERT_TRUE(LoadText(item, "<ActionItem Index='1'/>"));
    ASSERT_TRUE(source.LoadXMLText("<ActionItem><ActionData/><ActionResp/></ActionItem>", false));
    source.SetCurrentNode(source.GetXalanNode("", false));
    source.SetStoredQuery("//X");
    EXPECT_TRUE(item.MergeFromDataPacket(nullptr, "F", &source, true));
    EXPECT_EQ(source.GetStoredQuery(), "//X");
    EXPECT_EQ(item.GetIndex(), "1");
    EXPECT_NE(item.GetActionData(), nullptr);
    EXPECT_NE(item.GetActionResp(), nullptr);
    IssueRecorder recorder;
    ASSERT_TRUE(
        MergeText(item, "F", "<ActionItem><ActionResp MergeAction='x'/><ActionData MergeAction='y'/></ActionItem>"));
    ASSERT_EQ(recorder.issues.size(), 2U);
    EXPECT_EQ(recorder.issues[0].ErrorText.find("ActionData"), 0U); // the parent's fields come first
}

} // namespace
