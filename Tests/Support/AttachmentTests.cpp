#include "Framework/XMLSupport/Attachment.h"

#include "Framework/XMLSupport/WrapperState.h"

#include <memory>

#include <gtest/gtest.h>
#include <xercesc/dom/DOMNode.hpp>

namespace Framework {
namespace {

const char* const kXml = "<r><a>of r</a><b><a>inner</a></b></r>";

template <typename Wrapper = XMLDataWrapper> std::unique_ptr<Wrapper> Loaded() {
    auto wrapper = std::make_unique<Wrapper>();
    EXPECT_TRUE(wrapper->LoadXMLText(kXml, false)) << wrapper->GetLastError();
    return wrapper;
}

std::string Value(XMLDataWrapper& wrapper, const char* name, bool fromDocument = false) {
    return wrapper.GetStringValue(name, fromDocument);
}

TEST(Attachments, OutliveTheWrapperAndTheDocumentItIsGivenNext) {
    const struct {
        const char* how;
        void (*leave)(std::unique_ptr<FullFunctionXMLDataWrapper>& wrapper);
    } cases[] = {
        {"death", [](auto& wrapper) { wrapper.reset(); }},
        {"load", [](auto& wrapper) { EXPECT_TRUE(wrapper->LoadXMLText("<s/>", false)); }},
        {"output", [](auto& wrapper) { EXPECT_TRUE(wrapper->CreateOutputDocument("s")); }},
        {"failed load, death",
         [](auto& wrapper) {
             EXPECT_FALSE(wrapper->LoadXMLText("<s", false));
             EXPECT_EQ(Value(*wrapper, "a", true), "of r");
             wrapper.reset();
         }},
    };
    for (const auto& row : cases) {
        for (const bool hasDom : {false, true}) {
            auto wrapper = Loaded<FullFunctionXMLDataWrapper>();
            if (hasDom) {
                wrapper->GetDOMNode(true, false);
            }
            const std::shared_ptr<Attachment> attachment = Attachment::Of(*wrapper);
            EXPECT_EQ(Attachment::Of(*wrapper), attachment);
            EXPECT_EQ(attachment->Wrapper(), wrapper.get());
            row.leave(wrapper);
            XMLDataWrapper& left = *attachment->Wrapper();
            EXPECT_NE(&left, wrapper.get());
            EXPECT_EQ(Value(left, "a", true), "of r") << row.how;
            EXPECT_EQ(Attachment::Of(left), attachment) << row.how;
            // It belongs to the objects that stand on it: nobody loads another document under them.
            EXPECT_FALSE(left.LoadXMLText("<t/>", false)) << row.how;
            EXPECT_EQ(Value(left, "b/a", true), "inner") << row.how;
            if (wrapper != nullptr) {
                EXPECT_FALSE(wrapper->NodeExists("//a", true)) << row.how;
                EXPECT_NE(Attachment::Of(*wrapper), attachment) << row.how;
            }
        }
    }
}

TEST(Attachments, AScopeMovesWhatCameInBetween) {
    auto wrapper = Loaded();
    const std::shared_ptr<Attachment> before = Attachment::Of(*wrapper);
    std::shared_ptr<Attachment> during;
    {
        const AttachmentScope scope(*wrapper);
        during = Attachment::Of(*wrapper);
        EXPECT_NE(during, before);
        EXPECT_EQ(during->Wrapper(), wrapper.get());
        wrapper->SelectNode("b", false);
    }
    EXPECT_EQ(Attachment::Of(*wrapper), before);
    EXPECT_EQ(before->Wrapper(), wrapper.get());
    XMLDataWrapper& moved = *during->Wrapper();
    ASSERT_NE(&moved, wrapper.get());
    EXPECT_FALSE(moved.HasCurrentNode()); // and the caller's still stands where it stood
    EXPECT_EQ(Value(*wrapper, "a"), "inner");
    // One document under both, until one of them turns it into a DOM, whose edits are its own.
    EXPECT_EQ(WrapperAccess::State(moved).document, WrapperAccess::State(*wrapper).document);
    moved.SetCurrentNode(wrapper->GetXalanNode("", false));
    EXPECT_EQ(Value(moved, "a"), "inner");
    wrapper->GetDOMNode("a", false)->setTextContent(u"edited");
    EXPECT_EQ(Value(*wrapper, "a") + Value(moved, "a"), "editedinner");
    EXPECT_EQ(moved.GetXMLText(), kXml);
    wrapper.reset();
    EXPECT_EQ(Value(*before->Wrapper(), "a"), "edited"); // on the node where the wrapper died
    EXPECT_EQ(Value(moved, "a"), "inner");
}

} // namespace
} // namespace Framework
