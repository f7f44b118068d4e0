// What the headers promise for threads. A wrong result here is luck; the thread sanitizer tells of the race itself.

#include "Containers/EveryClass.h"

#include <atomic>
#include <thread>

#include "Framework/LoadLimits.h"

namespace {

/// Runs `work` with 0, 1, 2 ... in as many threads, all let go at the same time.
void InThreads(unsigned count, const std::function<void(unsigned)>& work) {
    std::atomic<bool> go = false;
    std::vector<std::thread> threads;
    for (unsigned number = 0; number < count; ++number) {
        threads.emplace_back([&, number] {
            go.wait(false);
            work(number);
        });
    }
    go = true;
    go.notify_all();
    for (std::thread& thread : threads) {
        thread.join();
    }
}

std::string SampleText(CatalogClass type, unsigned seed) {
    Samples::Random random(seed);
    return Samples::ToXml(Samples::Make(type, std::string(type.ElementName()), random), random, false);
}

TEST(Threads, AskTheCatalogAtOnce) {
    InThreads(4, [](unsigned) {
        for (const CatalogClass& type : ContainerCatalog::Classes()) {
            const auto object = type.Create(false);
            EXPECT_EQ(ContainerCatalog::ClassOf(*object).Name(), type.Name());
            EXPECT_EQ(ContainerCatalog::FindClass(type.Name()).Name(), type.Name());
            for (const CatalogField& field : type.Fields()) {
                EXPECT_EQ(ContainerCatalog::FindField(type, field.Name())->Words(), field.Words());
            }
        }
        for (const std::string_view root : ContainerCatalog::Roots()) {
            EXPECT_EQ(ContainerCatalog::FindRoot(root).ElementName(), root);
        }
    });
}

TEST(Threads, TreesOfOneReadOnlyDocument) {
    const CatalogClass type = ContainerCatalog::FindRoot("StateProcessingRoot");
    const std::string override = SampleText(type, 2);
    std::vector<std::unique_ptr<TypedDataContainer>> objects;
    XMLDataWrapper wrapper;
    ASSERT_TRUE(wrapper.LoadXMLText(SampleText(type, 1), true));
    for (int i = 0; i < 4; ++i) {
        objects.push_back(type.Create(false));
        ASSERT_TRUE(objects.back()->LoadFromDataPacket(nullptr, &wrapper, true));
    }
    const std::vector<std::string> expected = Samples::Lines(*objects[0]);
    InThreads(4, [&](unsigned number) {
        TypedDataContainer& object = *objects[number];
        EXPECT_EQ(Samples::Lines(object), expected);
        EXPECT_FALSE(object.UpdateContainedData());
        EXPECT_TRUE(MergeText(object, "F", override));
        const std::unique_ptr<XMLDataWrapper> content(object.BuildAndReturnDataContent());
        EXPECT_NE(content, nullptr) << object.GetLastError();
        objects[number].reset();
    });
}

TEST(Threads, TreesOfTheirOwnAndProcessWideSettings) {
    const std::vector<std::string_view> roots = ContainerCatalog::Roots();
    std::atomic<int> issues = 0;
    const auto count = [](void* context, const OverrideIssue&) { ++*static_cast<std::atomic<int>*>(context); };
    InThreads(4, [&](unsigned number) {
        for (std::size_t i = 0; i < roots.size(); i += 4) {
            const std::string_view root = roots[(i + number) % roots.size()];
            TypedDataContainer::SetOverrideIssueHandler(count, &issues);
            LoadLimits::SetDefault(LoadLimits::Default());
            const CatalogClass type = ContainerCatalog::FindRoot(root);
            const std::string name(root);
            const auto object = type.Create(false);
            EXPECT_TRUE(TypedDataContainer::RegisterModel("threads", name.c_str(), SampleText(type, number)));
            EXPECT_TRUE(object->LoadFromModel(nullptr, "threads", name.c_str(), false)) << object->GetLastError();
            EXPECT_FALSE(MergeText(*object, "F", "<" + name + " MergeAction='Nonsense'/>"));
            EXPECT_TRUE(MergeText(*object, "F", SampleText(type, number + 1)));
            EXPECT_TRUE(object->UpdateContainedData());
            const std::unique_ptr<XMLDataWrapper> content(object->BuildAndReturnDataContent());
            const auto again = type.Create(false);
            EXPECT_TRUE(again->LoadFromDataPacket(nullptr, content.get(), true));
            EXPECT_EQ(Samples::Lines(*again), Samples::Lines(*object));
        }
    });
    EXPECT_GE(issues, static_cast<int>(roots.size()));
    TypedDataContainer::SetOverrideIssueHandler(nullptr, nullptr);
}

} // namespace
