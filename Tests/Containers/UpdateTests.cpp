#include "Containers/EveryClass.h"
#include "Containers/Values.h"

#include <algorithm>

#include "Framework/LoadLimits.h"
#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

/// What one changed value may do to a document: one stretch between two bytes that stay. Returns that of the old text.
std::string_view ChangedStretch(const std::string& before, const std::string& after) {
    const auto [left, right] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto head = static_cast<std::size_t>(left - before.begin());
    const auto room = static_cast<std::ptrdiff_t>(std::min(before.size(), after.size()) - head);
    const auto tail = std::mismatch(before.rbegin(), before.rbegin() + room, after.rbegin()).first - before.rbegin();
    return std::string_view(before).substr(head, before.size() - head - static_cast<std::size_t>(tail));
}

/// Ends of elements and starts of others are never part of a value.
bool IsWithinOneValue(std::string_view stretch) {
    std::string text(stretch);
    for (const std::string section : {"<![CDATA[", "]]>"}) {
        for (std::size_t at; (at = text.find(section)) != std::string::npos;) {
            text.erase(at, section.size());
        }
    }
    return text == "/" || text.find('<') == std::string::npos;
}

std::string MakeDocument(CatalogClass type, unsigned seed) {
    Samples::Random random(seed);
    const Samples::Sample sample = Samples::Make(type, std::string(type.ElementName()), random, 1, seed % 3 == 1);
    return seed % 2 == 0 ? Samples::ToXmlWithRepeats(sample, random) : Samples::ToXml(sample, random, seed % 4 == 1);
}

TEST(Update, WritesOneChangedValueAndNothingElse) {
    const IssueRecorder doubledKeys;
    ForEveryClass([](CatalogClass type) {
        for (unsigned seed = 1; seed <= 4; ++seed) {
            const std::string xml = MakeDocument(type, seed);
            const std::size_t count = ValuesOf(*Loaded(type, xml).object).size();
            for (std::size_t i = 0; i < count; i += 1 + count / 8) {
                Loaded loaded(type, xml);
                const Value value = ValuesOf(*loaded.object)[i];
                const zelString old = value.Get();
                const zelString set = OtherThan(value.field, old);
                SCOPED_TRACE(std::string(value.field.Name()) + "=" + set + ", seed " + std::to_string(seed));
                ASSERT_TRUE(value.Set(set));
                ASSERT_TRUE(i % 2 == 0 ? loaded.object->UpdateContainedData() : value.WriteBack())
                    << loaded.wrapper.GetLastError();
                const std::string changed = loaded.Text();
                ASSERT_TRUE(IsWithinOneValue(ChangedStretch(xml, changed))) << changed;
                // Where elements are repeated, an entry whose key was doubled loads once the other has a new one.
                if (seed % 2 == 1 || value.field.GetForm() != CatalogField::Attribute) {
                    const std::vector<std::string> expected = Samples::Lines(*loaded.object);
                    ASSERT_TRUE(Samples::Lines(*Loaded(type, changed).object) == expected) << changed;
                    const std::unique_ptr<TypedDataContainer> clone(loaded.object->Clone());
                    ASSERT_TRUE(Samples::Lines(*clone) == expected) << changed;
                }
                if (value.field.GetValue() == CatalogField::Enumeration && old.empty()) {
                    continue; // no word is none that could be set again
                }
                ASSERT_TRUE(value.Set(old));
                ASSERT_TRUE(loaded.object->UpdateContainedData());
                ASSERT_EQ(loaded.Text(), xml) << changed;
            }
        }
    });
}

TEST(Update, WritesManyChangesAtOnceAndTakesThemBack) {
    ForEveryClass([](CatalogClass type) {
        for (unsigned seed = 1; seed <= 9; seed += 2) {
            const std::string xml = MakeDocument(type, seed);
            Loaded loaded(type, xml);
            std::vector<std::pair<Value, zelString>> old;
            unsigned count = 0;
            for (const Value& value : ValuesOf(*loaded.object)) {
                // Whole numbers may be keys, and two would become the same; no word is none that could be set again.
                const bool isNumber =
                    value.field.GetForm() == CatalogField::Attribute && value.field.GetValue() == CatalogField::Int;
                const bool isNoWord = value.field.GetValue() == CatalogField::Enumeration && value.Get().empty();
                if (!isNumber && !isNoWord && (++count + seed) % 3 != 0) {
                    ASSERT_TRUE(value.Set(OtherThan(value.field, old.emplace_back(value, value.Get()).second)));
                }
            }
            ASSERT_TRUE(loaded.object->UpdateContainedData()) << loaded.wrapper.GetLastError();
            ASSERT_EQ(Samples::Lines(*Loaded(type, loaded.Text()).object), Samples::Lines(*loaded.object)) << seed;
            for (const auto& [value, text] : old) {
                ASSERT_TRUE(value.Set(text));
            }
            ASSERT_TRUE(loaded.object->UpdateContainedData());
            ASSERT_EQ(loaded.Text(), xml) << "seed " << seed;
        }
    });
}

/// The value that a path such as "ChildThread:0/LibraryPath" leads to.
Value Find(TypedDataContainer& object, const std::string& path) {
    const std::size_t end = path.find('/');
    const std::string step = path.substr(0, end);
    const std::size_t colon = step.find(':');
    const CatalogField field = *ContainerCatalog::FindField(ContainerCatalog::ClassOf(object), step.substr(0, colon));
    std::optional<std::size_t> position;
    if (colon != std::string::npos) {
        position = static_cast<std::size_t>(step[colon + 1] - '0');
    }
    if (end == std::string::npos) {
        return {&object, field, position};
    }
    TypedDataContainer* const below = position ? field.Entry(object, *position) : field.GetChild(object);
    return Find(*below, path.substr(end + 1));
}

struct Case {
    const char* what;
    const char* type;
    std::string before;
    std::vector<std::pair<std::string, std::string>> changes;
    std::string after;
};

const Case cases[] = {
    {"swapped keys",
     "StateTableType",
     "<StateTable><State Name='a'/><State Name='b'/></StateTable>",
     {{"State:0/Name", "b"}, {"State:1/Name", "a"}},
     "<StateTable><State Name='b'/><State Name='a'/></StateTable>"},
    {"the last of two elements",
     "ChildThreadType",
     "<ChildThread><LibraryPath>1</LibraryPath><LibraryPath>2</LibraryPath></ChildThread>",
     {{"LibraryPath", "n"}},
     "<ChildThread><LibraryPath>1</LibraryPath><LibraryPath>n</LibraryPath></ChildThread>"},
    {"one object in two elements",
     "StateProcessingRootType",
     "<StateProcessingRoot><StateTable><State Name='a'/></StateTable>"
     "<StateTable Name='t'><State Name='b'/></StateTable></StateProcessingRoot>",
     {{"StateTable/State:0/BaseState", "n"}, {"StateTable/Name", "m"}},
     "<StateProcessingRoot><StateTable><State Name='a' BaseState='n'/></StateTable>"
     "<StateTable Name='m'><State Name='b'/></StateTable></StateProcessingRoot>"},
    {"an element with an attribute's name",
     "ChildThreadType",
     "<ChildThread><ConfigValue>x</ConfigValue></ChildThread>",
     {{"ConfigValue", "n"}},
     "<ChildThread ConfigValue=\"n\"><ConfigValue>x</ConfigValue></ChildThread>"},
    {"behind the earlier one and its remark",
     "ChildThreadType",
     "<ChildThread>\r\n\r\n\t<LibraryPath>1</LibraryPath> <!-- path -->\r\n\t<SubSystemName/>\r\n</ChildThread>",
     {{"LibraryPathDebug", "n"}},
     "<ChildThread>\r\n\r\n\t<LibraryPath>1</LibraryPath> <!-- path -->\r\n\t<LibraryPathDebug>n"
     "</LibraryPathDebug>\r\n\t<SubSystemName/>\r\n</ChildThread>"},
    {"before the later one and its remark",
     "ChildThreadType",
     "<ChildThread>\n  <!-- sub -->\n  <SubSystemName/>\n</ChildThread>",
     {{"LibraryPath", "n"}, {"LibraryPathDebug", "m"}},
     "<ChildThread>\n  <LibraryPath>n</LibraryPath>\n  <LibraryPathDebug>m</LibraryPathDebug>\n  <!-- sub -->\n"
     "  <SubSystemName/>\n</ChildThread>"},
    {"a step further in",
     "ThreadChildListType",
     "<ThreadChildList>\n    <ChildThread UniqueName='a'/>\n    <ChildThread UniqueName='b'>\n    "
     "</ChildThread>\n</ThreadChildList>",
     {{"ChildThread:0/LibraryPath", "n"}, {"ChildThread:1/LibraryPath", "m"}},
     "<ThreadChildList>\n    <ChildThread UniqueName='a'>\n        <LibraryPath>n</LibraryPath>\n    "
     "</ChildThread>\n    <ChildThread UniqueName='b'>\n        <LibraryPath>m</LibraryPath>\n    "
     "</ChildThread>\n</ThreadChildList>"},
    {"white space that counts",
     "ThreadChildListType",
     "<ThreadChildList xml:space='preserve'>\n <ChildThread>\n <SubSystemName/></ChildThread></ThreadChildList>",
     {{"ChildThread:0/LibraryPath", "n"}},
     "<ThreadChildList xml:space='preserve'>\n <ChildThread>\n <LibraryPath>n</LibraryPath><SubSystemName/>"
     "</ChildThread></ThreadChildList>"},
};

TEST(Update, WritesWhereALoadReads) {
    const IssueRecorder doubledKeys;
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const CatalogClass type = ContainerCatalog::FindClass(each.type);
        Loaded loaded(type, each.before);
        std::vector<zelString> old;
        for (const auto& [path, value] : each.changes) {
            old.push_back(Find(*loaded.object, path).Get());
            ASSERT_TRUE(Find(*loaded.object, path).Set(value));
        }
        EXPECT_TRUE(loaded.object->UpdateContainedData());
        EXPECT_EQ(loaded.Text(), each.after);
        Loaded again(type, loaded.Text());
        for (std::size_t i = 0; i < each.changes.size(); ++i) {
            EXPECT_EQ(Find(*again.object, each.changes[i].first).Get(), zelString(each.changes[i].second));
            ASSERT_TRUE(Find(*loaded.object, each.changes[i].first).Set(old[i]));
        }
        EXPECT_TRUE(loaded.object->UpdateContainedData());
        EXPECT_EQ(loaded.Text(), each.before);
    }
}

TEST(Update, WordsOutsideTheVocabularyAreWrittenBackEmpty) {
    Loaded loaded(ContainerCatalog::FindClass("ChildThreadType"),
                  "<ChildThread><ThreadPriority>Urgent</ThreadPriority></ChildThread>");
    EXPECT_TRUE(loaded.object->UpdateContainedData());
    EXPECT_EQ(loaded.Text(), "<ChildThread><ThreadPriority></ThreadPriority></ChildThread>");
}

TEST(Update, PassesOverWhatStandsNowhere) {
    Loaded loaded(ContainerCatalog::FindClass("StateTableType"), "<StateTable><State Name='a'/></StateTable>");
    auto& table = dynamic_cast<StateTableType&>(*loaded.object);
    auto* const added = new StateDefinitionType(true);
    added->SetName("b");
    table.AddNewState(added, "b");
    ASSERT_TRUE(MergeText(table, "Late", "<StateTable><State Name='a' BaseState='n'/><State Name='c'/></StateTable>"));
    EXPECT_TRUE(table.UpdateContainedData());
    EXPECT_EQ(loaded.Text(), "<StateTable><State Name='a' BaseState='n'/></StateTable>");
    EXPECT_EQ(loaded.wrapper.GetStoredQuery(), "//StateTable/State");
    EXPECT_EQ(table.BuildUpdateQuery("State", table.GetState("b")),
              "State[@Name='b'  and @Transient='false'  and @CacheActions='false'  and @BaseState='' ]");
    EXPECT_EQ(table.BuildUpdateQuery("State", table.GetState("a")), "State[1]");
}

TEST(Update, FindsAddedTextsByTheirKey) {
    const auto update = [](const std::string& docs, bool clear,
                           std::vector<std::pair<const char*, const char*>> added) {
        Loaded loaded(ContainerCatalog::FindClass("StateDefinitionType"),
                      "<StateDefinition>" + docs + "</StateDefinition>");
        auto& state = dynamic_cast<StateDefinitionType&>(*loaded.object);
        if (clear) {
            state.ClearDoc();
        }
        for (const auto& [text, key] : added) {
            state.AddDoc(text, key);
        }
        EXPECT_TRUE(state.UpdateContainedData());
        const std::string text = loaded.Text();
        return text.substr(17, text.size() - 35);
    };
    const std::string numbered = "<Doc Index='2'>a</Doc><Doc Index='1'>b</Doc><Doc Index='2'>c</Doc>";
    EXPECT_EQ(update(numbered, true, {{"x", "2"}, {"y", "3"}}),
              "<Doc Index='2'>x</Doc><Doc Index='1'>b</Doc><Doc Index='2'>c</Doc>");
    EXPECT_EQ(update("<Doc>a</Doc><Doc>b</Doc>", true, {{"x", "2"}, {"y", "02"}}), "<Doc>a</Doc><Doc>x</Doc>");
    EXPECT_EQ(update("<Doc Index='7'>a</Doc>", false, {{"x", "7"}}), "<Doc Index='7'>a</Doc>"); // that is the first's
}

TEST(Update, LeavesATextThatOnlyTheDocumentHasChanged) {
    Loaded loaded(ContainerCatalog::FindClass("StateDefinitionType"),
                  "<StateDefinition><Doc>a</Doc></StateDefinition>");
    ASSERT_TRUE(loaded.wrapper.SetQueryValue("Doc", "theirs", true));
    EXPECT_TRUE(loaded.object->UpdateContainedData());
    EXPECT_EQ(loaded.Text(), "<StateDefinition><Doc>theirs</Doc></StateDefinition>");
}

TEST(Update, ForgetsWhatItWasPopulatedFromBeforeAReset) {
    XMLDataWrapper wrapper;
    const std::string xml = "<L><ChildThread><LibraryPath>p</LibraryPath></ChildThread><ChildThread/></L>";
    ASSERT_TRUE(wrapper.LoadXMLText(xml, false));
    ChildThreadType thread(false);
    ASSERT_TRUE(thread.SetContainedDataPtr(&wrapper, wrapper.GetXalanNode("ChildThread[1]", false), false, true));
    thread.ResetDataMembers();
    ASSERT_TRUE(thread.SetContainedDataPtr(&wrapper, wrapper.GetXalanNode("ChildThread[2]", false), false, true));
    EXPECT_TRUE(thread.UpdateContainedData());
    EXPECT_EQ(wrapper.GetXMLText(), xml);
}

TEST(Update, LeavesOtherWrappersOfADocumentAlone) {
    const std::string xml = "<StateTable><State Name='n' BaseState='b'/></StateTable>";
    StateTableType table(false);
    ASSERT_TRUE(LoadText(table, "<StateTable/>"));
    XMLDataWrapper source;
    ASSERT_TRUE(source.LoadXMLText(xml, false));
    ASSERT_TRUE(
        table.MergeFromDataPacket(nullptr, "F", &source, false)); // the entry stands on that document from now on
    XalanNode* const node = source.SelectNode("State", false);
    ASSERT_TRUE(source.SetQueryValue("BaseState", "changed", false));
    source.SetCurrentNode(nullptr);
    source.SetCurrentNode(node); // a node from before the change
    EXPECT_EQ(source.GetStringValue("@BaseState", false), "changed");
    XMLDataWrapper* const own = table.GetState("n")->GetContainedDataPtr();
    EXPECT_EQ(own->GetXMLText(), xml);
    table.GetState("n")->SetBaseState("mine");
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(table.UpdateContainedData());
    }
    EXPECT_NE(own->GetXMLText().find("BaseState='mine'"), std::string::npos);
    EXPECT_EQ(own->GetStoredQuery(), "/State"); // does not grow with every update
    EXPECT_NE(source.GetXMLText().find("BaseState='changed'"), std::string::npos);
}

/// Asks for the DOM in the middle of the update of its parent.
class DomState : public StateDefinitionType {
public:
    DomState() : StateDefinitionType(true) {}
    bool UpdateContainedData() override {
        EXPECT_NE(GetContainedDataPtr()->GetDOMNode(true, false), nullptr);
        return StateDefinitionType::UpdateContainedData();
    }
};

TEST(Update, GoesOnWhenAHostTurnsToTheDomInMidWalk) {
    Loaded loaded(ContainerCatalog::FindClass("StateTableType"),
                  "<StateTable Name='t'><State Name='a'/><State Name='b'/></StateTable>");
    auto& table = dynamic_cast<StateTableType&>(*loaded.object);
    table.RemoveState("a", "");
    auto* const state = new DomState;
    state->SetContainerName("State");
    table.AddNewState(state, "a");
    ASSERT_TRUE(
        state->SetContainedDataPtr(&loaded.wrapper, loaded.wrapper.GetXalanNode("State[1]", false), false, true));
    table.SetName("new");
    table.GetState("b")->SetBaseState("c");
    EXPECT_TRUE(table.UpdateContainedData());
    EXPECT_NE(loaded.Text().find("<StateTable Name=\"new\"><State Name=\"a\"/><State BaseState=\"c\" Name=\"b\"/>"),
              std::string::npos)
        << loaded.Text();
}

TEST(Update, ReportsTheLastWriteAndGoesOnAfterAFailedOne) {
    Loaded loaded(ContainerCatalog::FindClass("ChildThreadType"),
                  "<ChildThread><LibraryPath>p</LibraryPath></ChildThread>");
    auto& thread = dynamic_cast<ChildThreadType&>(*loaded.object);
    thread.SetLibraryPath("\x01");
    thread.SetConfigLogic("n");
    EXPECT_TRUE(thread.UpdateContainedData());
    EXPECT_EQ(loaded.wrapper.GetLastError(),
              "cannot write ChildThread/LibraryPath: character U+0001 is not allowed in XML");
    EXPECT_EQ(loaded.Text(), "<ChildThread ConfigLogic=\"n\"><LibraryPath>p</LibraryPath></ChildThread>");
    thread.SetConfigLogic("\x02");
    EXPECT_FALSE(thread.UpdateContainedData());
}

TEST(Update, AddsNothingThatWouldNotLoadAgain) {
    const std::string xml = "<ChildThread UniqueName='u'/>";
    Loaded loaded(ContainerCatalog::FindClass("ChildThreadType"), xml);
    auto& thread = dynamic_cast<ChildThreadType&>(*loaded.object);
    LoadLimits limits;
    limits.depth = 1;
    limits.attributesPerElement = 1;
    LoadLimits::SetDefault(limits);
    thread.SetConfigLogic("n");
    EXPECT_FALSE(thread.UpdateContainedData());
    EXPECT_NE(loaded.wrapper.GetLastError().find("ChildThread/@ConfigLogic"), std::string::npos);
    thread.SetConfigLogic("");
    thread.SetLibraryPath("n");
    EXPECT_TRUE(thread.UpdateContainedData()); // the result is that of the attributes behind it
    EXPECT_NE(loaded.wrapper.GetLastError().find("ChildThread/LibraryPath: the document could not be loaded again"),
              std::string::npos);
    LoadLimits::SetDefault(LoadLimits());
    EXPECT_EQ(loaded.Text(), xml);
}

} // namespace
