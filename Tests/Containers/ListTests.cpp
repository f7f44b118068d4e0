// The list operations by form, where what counts is order, keys, ownership and growth.

#include "Containers/EveryClass.h"

#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

/// Counts its living objects.
class CountedThread : public ChildThreadType {
public:
    explicit CountedThread(const char* name, const char* feature = "") : ChildThreadType(false) {
        SetUniqueName(name);
        SetFeatureID(feature);
        ++alive;
    }
    ~CountedThread() override { --alive; }
    static inline int alive = 0;
};

TEST(KeyedList, KeepsEveryObjectAndDestroysEachOnce) {
    ThreadChildListType list(false);
    auto* const first = new CountedThread("k", "F");
    auto* const second = new CountedThread("k", "F");
    list.AddNewChildThread(first, "k");
    list.AddNewChildThread(second, "k");
    list.AddNewChildThread(second, "other key"); // one object under two keys
    list.AddNewChildThread(new CountedThread("c", "F"), "c");
    EXPECT_EQ(list.GetChildThreadLength(), 4);
    EXPECT_EQ(list.GetChildThread("k"), second);
    EXPECT_EQ(list.GetChildThread("other key"), second);
    EXPECT_EQ(list.GetChildThread(0), first);
    EXPECT_EQ(list.GetChildThread(4), nullptr);
    EXPECT_EQ(list.GetChildThread("none"), nullptr);
    list.RemoveChildThread("k", "F"); // the first match, and the key
    EXPECT_EQ(CountedThread::alive, 2);
    EXPECT_EQ(list.GetChildThread(0), second);
    EXPECT_EQ(list.GetChildThread("k"), nullptr);
    list.RemoveChildThread("c", "G"); // of another feature only the key
    EXPECT_EQ(list.GetChildThreadLength(), 3);
    EXPECT_EQ(list.GetChildThread("c"), nullptr);
    list.ResetDataMembers();
    EXPECT_EQ(CountedThread::alive, 0);
    {
        ThreadChildListType other(false);
        other.AddNewChildThread(new CountedThread("x"), "x");
        other.RemoveChildThread("x", "another feature");
    }
    EXPECT_EQ(CountedThread::alive, 0);
}

TEST(PlainList, GrowsFromTheTemplateOnRead) {
    CommEventTransformerListType list(false);
    list.SetFeatureID("F");
    ASSERT_NE(list.GetEventTransformer(1), nullptr);
    EXPECT_EQ(list.GetEventTransformerLength(), 2);
    EXPECT_EQ(list.GetEventTransformer(0)->GetContainerName(), "EventTransformer");
    EXPECT_EQ(list.GetEventTransformer(0)->GetFeatureID(), "F");
    ASSERT_TRUE(
        TypedDataContainer::RegisterTemplate(TypedDataContainer::TDC_BASE_DATA_TEMPLATE, "EventTransformer",
                                             "<EventTransformer><FactoryName>made</FactoryName></EventTransformer>"));
    EXPECT_EQ(list.GetEventTransformer(2)->GetFactoryName(), "made");
    EXPECT_EQ(list.GetEventTransformer(-1), nullptr);
    ASSERT_TRUE(TypedDataContainer::RegisterTemplate(TypedDataContainer::TDC_BASE_DATA_TEMPLATE, "EventTransformer",
                                                     "<Other/>"));
    EXPECT_EQ(list.GetEventTransformer(3), nullptr); // a template that does not fit
    EXPECT_EQ(list.GetEventTransformerLength(), 3);
    ASSERT_TRUE(TypedDataContainer::RegisterTemplate(TypedDataContainer::TDC_BASE_DATA_TEMPLATE, "EventTransformer",
                                                     "<EventTransformer/>"));
}

TEST(PlainList, StringsAndEnumerationsGrowOnReadAndKeyedStringsDoNot) {
    DataStorageContainerType storage(false);
    EXPECT_EQ(storage.GetLoadPath(0), "");
    storage.AddNewLoadPath("p");
    EXPECT_EQ(storage.GetLoadPath(1), "p");
    EXPECT_EQ(storage.GetLoadPath(3), "");
    EXPECT_EQ(storage.GetLoadPathLength(), 4);
    CaptureConfigSubRuleType rule(false);
    EXPECT_EQ(rule.GetCaptureLevel(1)->Value(), -1);
    rule.AddNewCaptureLevel(new CaptureLevelType(CaptureLevelType::CAPTURE_LEVEL_DEBUG));
    rule.AddCaptureLevel("CAPTURE_LEVEL_ERROR");
    rule.AddCaptureLevel("none such");
    EXPECT_EQ(rule.GetCaptureLevel(2)->StringOf(), "CAPTURE_LEVEL_DEBUG");
    EXPECT_EQ(rule.GetCaptureLevel(3)->Value(), CaptureLevelType::CAPTURE_LEVEL_ERROR);
    EXPECT_EQ(rule.GetCaptureLevel(4)->Value(), -1);
    StateProcessingRootType root(false);
    root.AddRevisionHistory("text", "a.xml");
    EXPECT_EQ(root.GetRevisionHistory("a.xml"), "text");
    EXPECT_EQ(root.GetRevisionHistory("b.xml"), "");
    EXPECT_EQ(root.GetRevisionHistory(1), "");
    EXPECT_EQ(root.GetRevisionHistoryLength(), 1);
}

TEST(Child, SetterTakesOverAndStoringTheSameChangesNothing) {
    StateProcessingRootType root(false);
    auto* const table = new StateTableType(false);
    root.SetStateTable(table);
    table->SetName("kept");
    root.SetStateTable(table);
    EXPECT_EQ(root.GetStateTable()->GetName(), "kept");
    root.SetStateTable(nullptr);
    EXPECT_EQ(root.GetStateTable(), nullptr);
}

TEST(Ownership, AWrapperMayDieOrBeReloadedUnderEverythingThatStandsOnIt) {
    auto wrapper = std::make_unique<XMLDataWrapper>();
    ASSERT_TRUE(wrapper->LoadXMLText(
        "<CommConfig><CommEntry name='a'><Parameters><Port>7</Port></Parameters></CommEntry></CommConfig>", false));
    CommConfigType object(false);
    ASSERT_TRUE(object.LoadFromDataPacket(nullptr, wrapper.get(), false));
    EXPECT_EQ(object.GetContainedDataPtr(), wrapper.get());
    EXPECT_EQ(object.GetCommEntry(0)->GetParameters()->GetContainedDataPtr(), wrapper.get());
    ASSERT_TRUE(wrapper->LoadXMLText("<Other/>", false));
    const std::unique_ptr<TypedDataContainer> clone(object.GetCommEntry(0)->Clone());
    EXPECT_EQ(static_cast<CommEntryType&>(*clone).GetParameters()->GetPort(), 7);
    wrapper.reset();
    XMLDataWrapper* const own = object.GetContainedDataPtr();
    ASSERT_NE(own, nullptr);
    EXPECT_EQ(own->GetStringValue("CommEntry/Parameters/Port", false), "7");
    object.GetCommEntry(0)->Clear(); // its own share only
    EXPECT_EQ(object.GetCommEntry(0)->GetContainedDataPtr(), nullptr);
    EXPECT_EQ(object.GetContainedDataPtr(), own);
}

TEST(Ownership, AReadOnlyWrapperStaysWhereItStandsAndIsShownByAllThatWasLoadedThroughIt) {
    auto wrapper = std::make_unique<XMLDataWrapper>();
    ASSERT_TRUE(wrapper->LoadXMLText(
        "<r><Other/><CommConfig><CommEntry name='a'><Parameters><Port>7</Port></Parameters></CommEntry></CommConfig>"
        "<CommConfig><CommEntry name='b'/></CommConfig></r>",
        true));
    XalanNode* const node = wrapper->SelectNode("CommConfig[2]", false);
    wrapper->SetStoredQuery("mine");
    CommConfigType second(false);
    ASSERT_TRUE(second.LoadFromDataPacket(nullptr, wrapper.get(), true)); // from where the wrapper stands
    EXPECT_NE(second.GetCommEntry("b"), nullptr);
    ASSERT_TRUE(second.MergeFromDataPacket(nullptr, "F", wrapper.get(), false)); // from the first of the document
    EXPECT_NE(second.GetCommEntry("a"), nullptr);
    EXPECT_EQ(second.GetCommEntryLength(), 2);
    CommConfigType merged(false);
    ASSERT_TRUE(merged.MergeFromDataPacket(nullptr, "F", wrapper.get(), true)); // from where it stands again
    EXPECT_EQ(merged.GetCommEntry(0)->Getname(), "b");
    wrapper->SetCurrentNode(wrapper->GetXalanNode("//CommConfig", true));
    CommConfigType object(false);
    ASSERT_TRUE(object.LoadFromDataPacket(nullptr, wrapper.get(), false));
    wrapper->SetCurrentNode(node);
    object.AddCommEntry(wrapper.get(), wrapper->GetXalanNode("CommEntry", false), "b");
    EXPECT_TRUE(object.UpdateContainedData()) << "nothing is to be written";
    const std::unique_ptr<TypedDataContainer> clone(object.GetCommEntry("a")->Clone());
    EXPECT_EQ(static_cast<CommEntryType&>(*clone).GetParameters()->GetPort(), 7);
    EXPECT_EQ(wrapper->GetXalanNode("", false), node);
    EXPECT_EQ(wrapper->GetStoredQuery(), "mine");
    const auto expectAll = [&](const XMLDataWrapper* shown) {
        for (TypedDataContainer* const each :
             {static_cast<TypedDataContainer*>(&object), static_cast<TypedDataContainer*>(object.GetCommEntry("a")),
              static_cast<TypedDataContainer*>(object.GetCommEntry("a")->GetParameters()),
              static_cast<TypedDataContainer*>(object.GetCommEntry("b")),
              static_cast<TypedDataContainer*>(merged.GetCommEntry(0)), static_cast<TypedDataContainer*>(&second),
              clone.get()}) {
            ASSERT_NE(each->GetContainedDataPtr(), nullptr);
            EXPECT_EQ(each->GetContainedDataPtr() == shown, shown == wrapper.get());
        }
    };
    expectAll(wrapper.get());
    object.GetCommEntry("a")->GetParameters()->SetPort(8);
    object.GetCommEntry("a")->GetParameters()->UpdateContainedData();
    EXPECT_EQ(object.GetCommEntry("a")->GetParameters()->GetLastError(), "the document is read only");
    const XMLDataWrapper* const gone = wrapper.get();
    wrapper.reset();
    expectAll(gone);
    EXPECT_EQ(object.GetContainedDataPtr()->GetStringValue("//Port", true), "7");
}

} // namespace
