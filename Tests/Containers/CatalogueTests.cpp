// Building trees by the catalogue alone, for every class: what was built is what a load would give, and nothing is left
// of what was taken away.

#include "Containers/EveryClass.h"

#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

Samples::Sample MakeSample(CatalogClass type) {
    Samples::Random random(5);
    return Samples::Make(type, std::string(type.ElementName()), random, 1, true);
}

void Build(TypedDataContainer& object, const Samples::Sample& sample) {
    for (const Samples::FieldSample& part : sample.fields) {
        const CatalogField& field = part.field;
        SCOPED_TRACE(std::string(field.Name()));
        if (field.IsScalar()) {
            ASSERT_TRUE(field.SetText(object, part.text)) << part.text;
        } else if (part.child != nullptr) {
            TypedDataContainer* const child = field.MakeChild(object);
            ASSERT_NE(child, nullptr);
            EXPECT_EQ(field.MakeChild(object), child);
            EXPECT_EQ(child->GetContainerName(), field.Name());
            EXPECT_EQ(child->GetFeatureID(), object.GetFeatureID());
            Build(*child, *part.child);
        }
        for (const Samples::EntrySample& one : part.entries) {
            if (one.object == nullptr) {
                ASSERT_TRUE(field.AddText(object, one.text, field.HasNumberedKeys() ? zelString() : one.key));
                continue;
            }
            TypedDataContainer* const entry = field.AddEntry(object, one.key);
            ASSERT_NE(entry, nullptr) << one.key;
            EXPECT_EQ(entry->GetFeatureID(), object.GetFeatureID());
            EXPECT_EQ(field.EntryKey(object, field.Length(object) - 1), one.key); // before Build sets it
            Build(*entry, *one.object);
        }
    }
}

std::unique_ptr<TypedDataContainer> MakeBuilt(const Samples::Sample& sample) {
    auto object = ContainerCatalog::Create(sample.type.Name(), false);
    object->SetFeatureID("F");
    Build(*object, sample);
    return object;
}

TEST(Catalogue, BuildsWhatALoadGives) {
    ForEveryClass([](CatalogClass type) {
        const Samples::Sample sample = MakeSample(type);
        const auto object = MakeBuilt(sample);
        EXPECT_EQ(Samples::Lines(*object), Samples::Lines(sample));
        const std::unique_ptr<XMLDataWrapper> dump(object->BuildAndReturnDataContent());
        ASSERT_NE(dump, nullptr) << object->GetLastError();
        EXPECT_EQ(ContainerCatalog::RootElement(*dump), type.ElementName());
        const auto again = type.Create(false);
        ASSERT_TRUE(LoadText(*again, dump->GetXMLText())) << again->GetLastError();
        EXPECT_EQ(Samples::Lines(*again), Samples::Lines(sample));
    });
}

TEST(Catalogue, TakesAwayWhatWasBuilt) {
    IssueRecorder recorder;
    std::size_t refused = 0;
    ForEveryClass([&refused](CatalogClass type) {
        const Samples::Sample sample = MakeSample(type);
        const auto object = MakeBuilt(sample);
        for (const Samples::FieldSample& part : sample.fields) {
            const CatalogField& field = part.field;
            SCOPED_TRACE(std::string(field.Name()));
            if (!field.IsList()) {
                EXPECT_FALSE(field.RemoveEntry(*object, 0));
                continue;
            }
            const bool isKeyed = field.GetForm() == CatalogField::KeyedList;
            ASSERT_EQ(part.entries.size(), 2U);
            const zelString first = part.entries[0].key;
            const zelString second = part.entries[1].key;
            EXPECT_EQ(field.FindEntry(*object, second), isKeyed ? std::optional<std::size_t>(1) : std::nullopt);
            EXPECT_FALSE(field.RemoveEntry(*object, 2));
            EXPECT_TRUE(field.RemoveEntry(*object, 0));
            EXPECT_EQ(field.Length(*object), 1U);
            EXPECT_EQ(field.EntryKey(*object, 0), second);
            EXPECT_EQ(field.EntryText(*object, 0), part.entries[1].text);
            EXPECT_EQ(field.FindEntry(*object, first), std::nullopt);
            if (isKeyed) { // the key that is left is taken, the one that went is free again
                const bool isText = field.GetValue() == CatalogField::String;
                EXPECT_FALSE(isText ? field.AddText(*object, "x", second) : field.AddEntry(*object, second) != nullptr);
                EXPECT_EQ(object->GetLastErrorNum(), -2);
                ++refused;
                EXPECT_TRUE(isText ? field.AddText(*object, "x", first) : field.AddEntry(*object, first) != nullptr);
                EXPECT_EQ(field.Length(*object), 2U);
            }
            if (field.HasNumberedKeys()) { // numbers go on behind the taken ones
                EXPECT_TRUE(field.RemoveEntry(*object, 1));
                EXPECT_TRUE(field.AddText(*object, "x"));
                EXPECT_EQ(field.EntryKey(*object, 1), "3");
            }
        }
        for (const CatalogField& field : type.Fields()) {
            field.Clear(*object);
            EXPECT_EQ(field.GetText(*object), field.IsScalar() ? field.DefaultText() : zelString()) << field.Name();
            EXPECT_EQ(field.GetChild(*object), nullptr) << field.Name();
            EXPECT_EQ(field.Length(*object), 0U) << field.Name();
        }
        EXPECT_EQ(Samples::Lines(*object), Samples::Lines(*type.Create(false)));
    });
    EXPECT_EQ(recorder.issues.size(), refused);
}

CatalogField FieldOf(TypedDataContainer& object, std::string_view name) {
    return ContainerCatalog::FindField(ContainerCatalog::ClassOf(object), name).value();
}

TEST(Catalogue, RefusesWhatDoesNotFitAndLeavesTheObjectAsItWas) {
    ThreadChildListType threads(false);
    DataStorageContainerType storage(false);
    StateActionListType actions(false);
    ActionRespType response(false);
    const std::string control("\x01");
    EXPECT_EQ(FieldOf(threads, "UniqueName").MakeChild(threads), nullptr);
    EXPECT_EQ(FieldOf(threads, "UniqueName").AddEntry(threads, "k"), nullptr);
    EXPECT_FALSE(FieldOf(threads, "UniqueName").AddText(threads, "t", "k"));
    EXPECT_FALSE(FieldOf(threads, "ChildThread").AddText(threads, "t", "k"));
    EXPECT_EQ(FieldOf(threads, "ChildThread").AddEntry(threads, control), nullptr);
    EXPECT_EQ(FieldOf(storage, "LoadPath").AddEntry(storage, ""), nullptr);
    EXPECT_FALSE(FieldOf(storage, "LoadPath").AddText(storage, control));
    EXPECT_FALSE(FieldOf(actions, "Doc").AddText(actions, "t", control));
    EXPECT_EQ(FieldOf(response, "PostActionResp").AddEntry(response, "seven"), nullptr); // the key is a number
    EXPECT_NE(FieldOf(response, "PostActionResp").AddEntry(response, "7"), nullptr);
    EXPECT_EQ(threads.GetChildThreadLength() + storage.GetLoadPathLength() + actions.GetDocLength(), 0);
    EXPECT_EQ(response.GetPostActionRespLength(), 1);
    EXPECT_EQ(response.GetPostActionResp("7")->GetResult(), 7);
}

/// A host's class: the catalogue goes by its operations.
class CountingTable : public StateTableType {
public:
    using StateTableType::StateTableType;
    void AddState(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) override {
        added += sName;
        if (sName != "refused") {
            StateTableType::AddState(pData, spNode, sName);
        }
    }
    void ClearState() override {
        ++cleared;
        StateTableType::ClearState();
    }
    zelString added;
    int cleared = 0;
};

TEST(Catalogue, CallsTheVirtualOperationsOfTheClass) {
    CountingTable table(false);
    const CatalogField states = FieldOf(table, "State");
    TypedDataContainer* const entry = states.AddEntry(table, "a");
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(table.GetState("a"), entry);
    EXPECT_EQ(states.AddEntry(table, "refused"), nullptr);
    EXPECT_EQ(table.added, "arefused");
    table.StateTableType::AddState(nullptr, nullptr, "b"); // still not built from scratch
    EXPECT_EQ(table.GetStateLength(), 1);
    states.Clear(table);
    EXPECT_EQ(table.cleared, 1);
    EXPECT_EQ(table.GetStateLength(), 0);
}

TEST(Catalogue, CreatesByRootElementElseByClassName) {
    for (const std::string_view root : ContainerCatalog::Roots()) {
        const auto object = ContainerCatalog::Create(root, true);
        ASSERT_NE(object, nullptr) << root;
        EXPECT_EQ(object->GetContainerName(), root);
    }
    EXPECT_EQ(ContainerCatalog::Create("State", false), nullptr); // no root
    EXPECT_EQ(ContainerCatalog::Create("", false), nullptr);
}

TEST(Catalogue, RootElementIsThatOfTheDocumentWhereverTheWrapperStands) {
    XMLDataWrapper wrapper;
    EXPECT_EQ(ContainerCatalog::RootElement(wrapper), "");
    ASSERT_TRUE(wrapper.LoadXMLText("<!-- c --><p:A xmlns:p='u'><B/></p:A>", false));
    ASSERT_NE(wrapper.SelectNode("B", false), nullptr);
    EXPECT_EQ(ContainerCatalog::RootElement(wrapper), "p:A");
    ASSERT_NE(wrapper.GetDOMNode(true, false), nullptr); // now a DOM
    EXPECT_EQ(ContainerCatalog::RootElement(wrapper), "p:A");
    FullFunctionXMLDataWrapper output;
    ASSERT_TRUE(output.CreateOutputDocument(nullptr));
    EXPECT_EQ(ContainerCatalog::RootElement(output), "");
}

} // namespace
