// Depth costs no stack: with the limits lifted, everything that walks a document works on a thread that has little.

#include "Containers/EveryClass.h"

#include <pthread.h>

#include "Framework/LoadLimits.h"
#include "Repeat.h"
#include "Robustness/Sizes.h"

namespace {

/// Runs on a thread with a stack of 256 KB; a deeper recursion ends the process.
void OnLittleStack(const std::function<void()>& work) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, std::size_t{256} * 1024), 0);
    pthread_t thread{};
    const auto run = [](void* call) -> void* {
        (*static_cast<const std::function<void()>*>(call))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, run, const_cast<std::function<void()>*>(&work)), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

struct DeepDocument {
    DeepDocument() {
        const std::size_t depth = Robustness::FullSizes() ? 1'000'000 : 30'000;
        text = "<CommConfig><CommEntry name='a'>" + Repeat("<d>", depth) + "<Name>old</Name>" + Repeat("</d>", depth) +
               "</CommEntry></CommConfig>";
    }
    std::string text;
};

TEST(DepthThread, OfADocumentCostsNoStack) {
    const DeepDocument deep;
    const LoadLimits::Scope unused(LoadLimits::None()); // of this thread, not of the other
    OnLittleStack([&] {
        XMLDataWrapper wrapper;
        EXPECT_FALSE(wrapper.LoadXMLText(deep.text, false));
        const LoadLimits::Scope lifted(LoadLimits::None());
        ASSERT_TRUE(wrapper.LoadXMLText(deep.text, false)) << wrapper.GetLastError();
        EXPECT_EQ(wrapper.GetStringValue("//Name", true), "old");
        EXPECT_TRUE(wrapper.NodeExists("//CommEntry/d/d/d", true));
        EXPECT_NE(wrapper.GetXalanNode("//Name[.='old']", true), nullptr); // the XPath engine
        ASSERT_TRUE(wrapper.SetQueryValue("//Name", "new", true)) << wrapper.GetLastError();
        std::string expected = deep.text;
        expected.replace(expected.find("old"), 3, "new");
        EXPECT_EQ(wrapper.GetXMLText(), expected);
        ASSERT_NE(wrapper.GetDOMNode("//Name", true), nullptr); // now a DOM
        ASSERT_TRUE(wrapper.SetQueryValue("//Name", "old", true)) << wrapper.GetLastError();
        EXPECT_EQ(wrapper.GetStringValue("//Name", true), "old");
        EXPECT_NE(wrapper.GetXMLText().find("<Name>old</Name>"), std::string::npos);
        EXPECT_FALSE(wrapper.SetQueryValue("//Name", "\x01", true));
        EXPECT_NE(wrapper.GetLastError().find("d/Name: character U+0001"), std::string::npos) << wrapper.GetLastError();
    });
}

TEST(DepthThread, UnderATypedTreeCostsNoStack) {
    const DeepDocument deep;
    OnLittleStack([&] {
        const LoadLimits::Scope lifted(LoadLimits::None());
        const CatalogClass type = ContainerCatalog::FindRoot("CommConfig");
        Loaded loaded(type, deep.text);
        TypedDataContainer& object = *loaded.object;
        EXPECT_TRUE(object.UpdateContainedData());
        EXPECT_TRUE(MergeText(object, "F", deep.text));
        EXPECT_TRUE(MergeText(object, "G", "<CommConfig MergeAction='Replace'>" + deep.text.substr(12)));
        const std::unique_ptr<TypedDataContainer> clone(object.Clone());
        ASSERT_NE(clone, nullptr);
        EXPECT_NE(DumpedByNode(*clone).find("name=\"a\""), std::string::npos);
        const auto fromDom = type.Create(false);
        EXPECT_TRUE(fromDom->LoadFromDOMNode(nullptr, loaded.wrapper.GetDOMNode(true, false), false));
        EXPECT_EQ(Samples::Lines(*fromDom), Samples::Lines(*Loaded(type, deep.text).object));
    });
}

} // namespace
