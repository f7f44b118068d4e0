// What the headers promise for threads. A wrong result here is luck; the thread sanitizer tells of the race itself.

#include "Commands.h"
#include "Containers/EveryClass.h"
#include "Containers/Examples.h"
#include "Containers/Values.h"
#include "Robustness/Sizes.h"

#include <atomic>
#include <barrier>
#include <thread>

#include <xalanc/XalanDOM/XalanDOMString.hpp>
#include <xalanc/XalanDOM/XalanNode.hpp>

#include "Framework/DocumentCheck.h"
#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/LoadLimits.h"
#include "Framework/MergeJournal.h"
#include "FrameworkDataContainers/FieldTableIndex.h"
#include "Fuzz/Target.h"

namespace {

constexpr unsigned kThreads = 8;

/// Runs `work` with 0, 1, 2 ... in as many threads, all let go at the same time.
void InThreads(unsigned count, const std::function<void(unsigned)>& work) {
    std::barrier together(count);
    std::vector<std::jthread> threads;
    for (unsigned number = 0; number < count; ++number) {
        threads.emplace_back([&, number] {
            together.arrive_and_wait();
            work(number);
        });
    }
}

std::atomic<int> issueCount = 0;

/// Counts what goes to the override log, and keeps standard error quiet.
void CountIssues() {
    TypedDataContainer::SetOverrideIssueHandler([](void*, const OverrideIssue&) { ++issueCount; }, nullptr);
}

using Lines = std::vector<std::string>;

void Append(Lines& lines, const Lines& more) {
    lines.insert(lines.end(), more.begin(), more.end());
}

/// What XPath and the nodes of Xalan's interface say; both are made when they are first asked for.
void AppendNodes(Lines& lines, XMLDataWrapper& document) {
    for (const char* const query : {"//*[last()][@*]", "/*/*[position() > 1]", "//*[not(*)][text()]"}) {
        const XalanNode* node = document.GetXalanNode(query, true);
        for (int i = 0; node != nullptr && i < 20; ++i) {
            lines.push_back(zelString(node->getNodeName().c_str()) + "=" + zelString(node->getNodeValue().c_str()));
            node = node->getFirstChild() != nullptr ? node->getFirstChild() : node->getNextSibling();
        }
    }
}

/// One document of the examples: once as everybody's own, once read only and shared by all.
class ExampleWork {
public:
    ExampleWork(CatalogClass type, Example example) : m_type(type), m_example(std::move(example)) {
        EXPECT_TRUE(m_shared.LoadXMLFile(m_example.document.c_str(), true)) << m_shared.GetLastError();
        for (const std::filesystem::path& path : m_example.overrides) {
            m_sharedOverrides.push_back(std::make_unique<XMLDataWrapper>());
            EXPECT_TRUE(m_sharedOverrides.back()->LoadXMLFile(path.c_str(), true));
        }
    }

    std::string_view Name() const { return m_type.ElementName(); }

    /// What must hold for any document, in whatever thread.
    void WithOwnDocument() const {
        try {
            const std::string document = Framework::ReadText(m_example.document);
            Fuzz::Load(document);
            const Framework::TemporaryFolder folder;
            const std::string file = folder / "saved.xml";
            XMLDataWrapper wrapper;
            EXPECT_TRUE(wrapper.LoadXMLFile(m_example.document.c_str(), false) && wrapper.SaveXMLFile(file.c_str()));
            EXPECT_EQ(Framework::ReadText(file), document);
            for (const std::filesystem::path& path : m_example.overrides) {
                Fuzz::Merge(document + "\n====\n" + Framework::ReadText(path));
            }
        } catch (const Fuzz::Violation& violation) {
            ADD_FAILURE() << Name() << ": " << violation.what;
        }
    }

    /// All that it saw, to be compared with what it sees when nothing else runs.
    Lines WithSharedDocument() {
        Lines seen;
        const auto reader = m_type.Create(false);
        EXPECT_TRUE(reader->LoadFromDataPacket(nullptr, &m_shared, true)) << reader->GetLastError();
        auto writer = m_type.Create(false);
        EXPECT_TRUE(writer->LoadFromDataPacket(nullptr, &m_shared, false)) << writer->GetLastError();
        EXPECT_EQ(reader->GetContainedDataPtr(), &m_shared);
        Append(seen, Samples::Lines(*reader));
        for (const Value& value : ValuesOf(*reader)) {
            for (const zelString& text : value.field.DocumentTexts(*value.object)) {
                seen.push_back(text);
            }
        }
        EXPECT_TRUE(writer->UpdateContainedData()) << writer->GetLastError(); // nothing has changed
        const std::unique_ptr<TypedDataContainer> clone(writer->Clone());
        MergeJournal journal;
        const MergeJournal::Recording recording(journal);
        for (const std::unique_ptr<XMLDataWrapper>& source : m_sharedOverrides) {
            EXPECT_TRUE(reader->MergeFromDataPacket(nullptr, "F", source.get(), false)) << reader->GetLastError();
            EXPECT_TRUE(writer->MergeFromDataPacket(nullptr, "G", source.get(), false)) << writer->GetLastError();
        }
        Append(seen, Samples::Lines(*reader));
        seen.push_back(DumpedByNode(*writer));
        writer.reset();
        for (std::size_t i = 0; i < journal.Size(); ++i) {
            const MergeJournal::Entry entry = journal.At(i);
            seen.push_back(entry.Path + "=" + entry.NewValue + " at " + std::to_string(entry.Place.Line));
        }
        for (const Finding& finding : DocumentCheck::Run(m_shared, m_type, DocumentCheck::Kind::Override)) {
            seen.push_back(finding.Text);
        }
        Append(seen, Samples::Lines(*clone));
        AppendNodes(seen, m_shared);
        seen.push_back(m_shared.GetStringValue("//Name[2]", false)); // by an index of all elements
        seen.push_back(m_shared.GetXMLText());
        seen.push_back(m_shared.GetStringValue("*[1]", false));
        EXPECT_FALSE(m_shared.NodeExists("@FeatureID='", true));
        EXPECT_FALSE(m_shared.SetQueryValue("", "changed", false));
        EXPECT_FALSE(m_shared.GetLastError().empty());
        return seen;
    }

    void ExpectUnmoved() const {
        for (const std::unique_ptr<XMLDataWrapper>& source : m_sharedOverrides) {
            EXPECT_FALSE(source->HasCurrentNode()) << Name();
            EXPECT_EQ(source->GetStoredQuery(), "") << Name();
        }
    }

private:
    CatalogClass m_type;
    Example m_example;
    XMLDataWrapper m_shared;
    std::vector<std::unique_ptr<XMLDataWrapper>> m_sharedOverrides;
};

/// The first use of the library is here: every test has a process of its own.
TEST(FirstUseInThreads, StartsEverythingOnce) {
    const CatalogClass type = ContainerCatalog::FindRoot("StateProcessingRoot");
    const std::string xml = "<StateProcessingRoot><StateTable><State Name='a'/></StateTable></StateProcessingRoot>";
    const std::function<void(TypedDataContainer&, XMLDataWrapper&)> firsts[] = {
        [](auto&, auto&) { EXPECT_TRUE(FullFunctionXMLDataWrapper().CreateOutputDocument("r")); }, // Xerces
        [](auto&, auto& wrapper) { EXPECT_TRUE(wrapper.NodeExists("//*[count(@*) > 0]", true)); }, // Xalan
        [&](auto& object, auto&) { EXPECT_TRUE(LoadText(object, xml)); },                          // views
        [](auto& object, auto&) {                                                                  // template stores
            EXPECT_TRUE(object.LoadFromTemplate(nullptr, TypedDataContainer::TDC_BASE_DATA_TEMPLATE,
                                                "StateProcessingRoot", true));
        },
        [](auto& object, auto&) { // override log, error of a parser
            EXPECT_FALSE(MergeText(object, "F", "<StateProcessingRoot MergeAction='Nonsense'/>"));
            EXPECT_FALSE(XMLDataWrapper().LoadXMLText("<a><b></a>", false));
        },
    };
    CountIssues();
    InThreads(kThreads, [&](unsigned number) {
        for (std::size_t i = 0; i < std::size(firsts); ++i) {
            const auto object = type.Create(false);
            XMLDataWrapper wrapper;
            EXPECT_TRUE(wrapper.LoadXMLText(xml, false));
            firsts[(i + number / 2) % std::size(firsts)](*object, wrapper); // two threads begin with the same
        }
    });
    EXPECT_EQ(issueCount, static_cast<int>(kThreads));
}

TEST(Threads, EightGiveWhatOneGives) {
    std::vector<std::unique_ptr<ExampleWork>> works;
    std::vector<Lines> alone;
    CountIssues();
    for (const auto& [root, example] : Examples()) {
        const CatalogClass type = ContainerCatalog::FindRoot(root);
        alone.push_back(ExampleWork(type, example).WithSharedDocument());
        works.push_back(std::make_unique<ExampleWork>(type, example)); // afresh: nothing of it is made yet
    }
    const std::size_t shares = Robustness::FullSizes() ? 200 : 4;
    std::atomic<std::size_t> next = 0;
    InThreads(kThreads, [&](unsigned) {
        // Neighbours in the order of work share an example, so that threads meet at it.
        for (std::size_t job = next++; job < works.size() * shares; job = next++) {
            const std::size_t which = job / shares;
            ExampleWork& work = *works[which];
            EXPECT_EQ(work.WithSharedDocument(), alone[which]) << work.Name();
            if (job % 4 == 0) {
                work.WithOwnDocument();
            }
        }
    });
    for (const std::unique_ptr<ExampleWork>& work : works) {
        work->ExpectUnmoved();
    }
}

/// The wrappers end in one thread while the others use, copy and destroy what they loaded through them.
TEST(Threads, OutliveTheWrappersOfSharedDocumentsInAnyOrder) {
    const CatalogClass type = ContainerCatalog::FindRoot("StateProcessingRoot");
    for (unsigned seed = 1; seed <= (Robustness::FullSizes() ? 200U : 4U); ++seed) {
        auto document = std::make_unique<XMLDataWrapper>();
        auto source = std::make_unique<XMLDataWrapper>();
        ASSERT_TRUE(document->LoadXMLText(SampleText(type, seed), true));
        ASSERT_TRUE(source->LoadXMLText(SampleText(type, seed + 1), true));
        const auto alone = type.Create(false);
        ASSERT_TRUE(alone->LoadFromDataPacket(nullptr, document.get(), true));
        const std::vector<std::string> loaded = Samples::Lines(*alone);
        ASSERT_TRUE(alone->MergeFromDataPacket(nullptr, "F", source.get(), false));
        const std::vector<std::string> merged = Samples::Lines(*alone);

        std::vector<std::unique_ptr<TypedDataContainer>> objects(kThreads);
        std::barrier together(kThreads);
        InThreads(kThreads, [&](unsigned number) {
            std::unique_ptr<TypedDataContainer>& object = objects[number];
            object = type.Create(false);
            EXPECT_TRUE(object->LoadFromDataPacket(nullptr, document.get(), number % 2 == 0));
            EXPECT_TRUE(object->MergeFromDataPacket(nullptr, "F", source.get(), false));
            together.arrive_and_wait();
            if (number == seed % kThreads) {
                document.reset();
                source.reset();
            }
            EXPECT_EQ(Samples::Lines(*object), merged);
            EXPECT_NE(object->GetContainedDataPtr(), nullptr);
            std::unique_ptr<TypedDataContainer> clone(object->Clone());
            EXPECT_EQ(clone == nullptr, number % 2 == 0);
            together.arrive_and_wait();
            objects[(number + 1) % kThreads].reset(); // a neighbour's
            if (clone != nullptr) {
                EXPECT_EQ(Samples::Lines(*clone), loaded);
                EXPECT_NE(clone->GetContainedDataPtr()->GetXMLText(), "");
            }
        });
    }
}

/// A wrapper that is not read only is loaded from by one thread; what only looks at its document may then be done by
/// many.
TEST(Threads, CopyAndMergeTreesOfOneWrapper) {
    const CatalogClass type = ContainerCatalog::FindRoot("StateProcessingRoot");
    const std::string override = SampleText(type, 2);
    XMLDataWrapper wrapper;
    ASSERT_TRUE(wrapper.LoadXMLText(SampleText(type, 1), false));
    std::vector<std::unique_ptr<TypedDataContainer>> objects;
    for (unsigned i = 0; i < kThreads; ++i) {
        ASSERT_TRUE(objects.emplace_back(type.Create(false))->LoadFromDataPacket(nullptr, &wrapper, false));
    }
    XalanNode* const node = wrapper.SelectNode("StateTable", false);
    const std::vector<std::string> loaded = Samples::Lines(*objects[0]);
    InThreads(kThreads, [&](unsigned number) {
        TypedDataContainer& object = *objects[number];
        const std::unique_ptr<TypedDataContainer> clone(object.Clone());
        EXPECT_EQ(Samples::Lines(*clone), loaded);
        EXPECT_TRUE(MergeText(object, "F", override));
        EXPECT_NE(DumpedByNode(object), DumpedByNode(*clone));
        objects[number].reset();
    });
    EXPECT_EQ(wrapper.GetXalanNode("", false), node);
}

/// A document that was shared is edited in place by the last who has it. The order between that and the reads of those
/// who let go of it before must not hang on luck: nothing else here makes one.
TEST(Threads, EditWhatOthersHaveLetGo) {
    const CatalogClass type = ContainerCatalog::FindClass("StateTableType");
    std::string xml = "<StateTable>";
    for (int i = 0; i < 50; ++i) {
        xml += "<State Name='" + std::to_string(i) + "' BaseState='old'/>";
    }
    XMLDataWrapper source;
    ASSERT_TRUE(source.LoadXMLText(xml + "</StateTable>", false)) << source.GetLastError();
    std::unique_ptr<TypedDataContainer> objects[] = {type.Create(false), type.Create(false)};
    for (const auto& object : objects) {
        ASSERT_TRUE(LoadText(*object, "<StateTable/>"));
        ASSERT_TRUE(object->MergeFromDataPacket(nullptr, "F", &source, false));
    }
    ASSERT_TRUE(source.LoadXMLText("<Else/>", false));
    const auto expectText = [](TypedDataContainer& object, const zelString& text, const zelString& next) {
        for (const Value& value : ValuesOf(object)) {
            if (value.field.Name() == "BaseState") {
                EXPECT_EQ(value.field.DocumentTexts(*value.object), std::vector<zelString>{text});
                EXPECT_TRUE(value.Set(next));
            }
        }
    };
    std::atomic<bool> hasLetGo = false;
    InThreads(2, [&](unsigned number) {
        if (number == 0) {
            expectText(*objects[0], "old", "");
            objects[0].reset();
            hasLetGo.store(true, std::memory_order_relaxed);
            return;
        }
        while (!hasLetGo.load(std::memory_order_relaxed)) {
            Zelvon::LinuxThreadTools::LinuxYieldThread();
        }
        expectText(*objects[1], "old", "new");
        EXPECT_TRUE(objects[1]->UpdateContainedData());
        expectText(*objects[1], "new", "");
    });
}

/// One thread changes a keyed list, others look its keys up: for every keyed list of every class.
TEST(Threads, LookUpKeysBesideOneThatAddsAndRemoves) {
    const int count = Robustness::FullSizes() ? 2000 : 40;
    const auto key = [](int number) { return SupportFunc::GetStrValue(number); };
    std::size_t lists = 0;
    for (const Framework::FieldTable* const table : Framework::FieldTableIndex::Tables()) {
        for (const Framework::FieldRow& row : table->rows) {
            if (row.form != Framework::FieldForm::KeyedList) {
                continue;
            }
            SCOPED_TRACE(std::string(table->className) + "/" + std::string(row.name));
            ++lists;
            const std::unique_ptr<TypedDataContainer> object(table->create(true));
            const CatalogField field(row);
            const bool holdsTexts = row.value == Framework::FieldValue::String;
            std::atomic<bool> done = false;
            InThreads(3, [&](unsigned number) {
                if (number > 0) {
                    for (int i = 0; !done; i = (i + 7) % count) {
                        if (holdsTexts) {
                            const zelString text = Framework::TextByKey((*object).*row.map.texts, key(i));
                            EXPECT_TRUE(text.empty() || text == "a text that is longer than " + key(i));
                        } else {
                            Framework::EntryByKey((*object).*row.map.entries, key(i));
                        }
                    }
                    return;
                }
                for (int round = 0; round < 2; ++round) {
                    for (int i = 0; i < count; ++i) {
                        EXPECT_TRUE(holdsTexts ? field.AddText(*object, "a text that is longer than " + key(i), key(i))
                                               : field.AddEntry(*object, key(i)) != nullptr);
                    }
                    for (int i = 0; !holdsTexts && i < count; i += 2) {
                        Framework::RemoveKeyed(*object, row, key(i), "");
                    }
                    EXPECT_EQ(field.Length(*object), static_cast<std::size_t>(holdsTexts ? count : count / 2));
                    field.Clear(*object);
                }
                done = true;
            });
        }
    }
    EXPECT_GT(lists, 40U);
}

TEST(Threads, SetWhatHoldsForTheWholeProcess) {
    const std::vector<std::string_view> roots = ContainerCatalog::Roots();
    InThreads(4, [&](unsigned number) {
        for (std::size_t i = 0; i < roots.size(); ++i) {
            const std::string_view root = roots[(i * (number + 1)) % roots.size()];
            CountIssues();
            LoadLimits::SetDefault(LoadLimits::Default());
            MergeJournal::SetStrict(number % 2 == 0);
            const CatalogClass type = ContainerCatalog::FindRoot(root);
            const std::string name(root);
            const auto object = type.Create(false);
            EXPECT_TRUE(TypedDataContainer::RegisterModel("threads", name.c_str(), SampleText(type, number)));
            EXPECT_TRUE(object->LoadFromModel(nullptr, "threads", name.c_str(), false)) << object->GetLastError();
            EXPECT_FALSE(MergeText(*object, "F", "<" + name + " MergeAction='Nonsense'/>"));
            EXPECT_TRUE(MergeText(*object, "F", SampleText(type, number + 1)));
            EXPECT_TRUE(object->UpdateContainedData());
        }
    });
    MergeJournal::SetStrict(false);
    EXPECT_GE(issueCount, static_cast<int>(roots.size() * 4));
}

} // namespace
