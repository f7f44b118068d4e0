// Finding and making nodes of an output document by query.

#include <stdexcept>

#include <gtest/gtest.h>
#include <xercesc/dom/DOM.hpp>

#include "Framework/XMLSupport/DomNodes.h"
#include "Framework/XMLSupport/OutputScope.h"
#include "Framework/XMLSupport/XmlWriter.h"

namespace Framework {
namespace {

/// The root as XML, empty when there is none.
std::string Unindented(FullFunctionXMLDataWrapper& wrapper) {
    const XmlTree& tree = *WrapperAccess::State(wrapper).Tree();
    return tree.Root() == NodeRef::None ? "" : WriteXml(tree, tree.Root(), {.declaration = false});
}

TEST(OutputPath, CreateQueryPathMakesWhatIsMissing) {
    const struct {
        const char* query;
        const char* root; ///< what stands in the document from then on, one after the other
    } cases[] = {
        {"//r[@k='1' ]", R"(<r k="1"/>)"}, // the root of an empty document
        {"//r[@k='2'  and @l='it's' ]", R"(<r k="2" l="it's"/>)"},
        {"//r[1]", R"(<r k="2" l="it's"/>)"},
        {"//s/t", R"(<r k="2" l="it's"><s><t/></s></r>)"},
        {"//r/s/t[3][@k='<&]]>\"\xC3\xA9' ]",
         "<r k=\"2\" l=\"it's\"><s><t/><t/><t k=\"&lt;&amp;]]>&quot;\xC3\xA9\"/></s></r>"},
        {"s/t[2][@k='x' ]", "<r k=\"2\" l=\"it's\"><s><t/><t k=\"x\"/><t k=\"&lt;&amp;]]>&quot;\xC3\xA9\"/></s></r>"},
        {"//r/s", nullptr}, // there already
        {"//t[2]", nullptr},
        {"//r/s/t[@k='x' ]", nullptr},
        {"//t[@k='x' ]", nullptr},
    };
    FullFunctionXMLDataWrapper wrapper;
    EXPECT_FALSE(wrapper.CreateQueryPath("//r"));
    ASSERT_TRUE(wrapper.CreateOutputDocument(nullptr));
    EXPECT_FALSE(wrapper.CreateQueryPath("//r[2]"));
    EXPECT_FALSE(wrapper.CreateQueryPath("r"));
    std::string before;
    for (const auto& row : cases) {
        EXPECT_TRUE(wrapper.CreateQueryPath(row.query)) << wrapper.GetLastError();
        EXPECT_NE(wrapper.FindOutputNode(row.query, true, true), nullptr) << row.query;
        EXPECT_EQ(Unindented(wrapper), row.root == nullptr ? before : row.root) << row.query;
        before = Unindented(wrapper);
    }
    for (const char* query : {"a b", "//r/@m", "//r/s[0]", "//r/s[5000]", "//r/new/\xFF", "//r/s[last()]"}) {
        EXPECT_FALSE(wrapper.CreateQueryPath(query)) << query;
    }
    EXPECT_EQ(Unindented(wrapper), before);
    FullFunctionXMLDataWrapper loaded;
    ASSERT_TRUE(loaded.LoadXMLText("<r/>", true));
    EXPECT_FALSE(loaded.CreateQueryPath("//r/s"));
    ASSERT_TRUE(loaded.LoadXMLText("<r/>", false));
    EXPECT_TRUE(loaded.CreateQueryPath("//r/s"));
    EXPECT_TRUE(loaded.NodeExists("s", false));
}

TEST(OutputPath, AWalkFindsWhatCameSinceItBegan) {
    FullFunctionXMLDataWrapper wrapper;
    ASSERT_TRUE(wrapper.CreateOutputDocument("r"));
    OutputScope outer(wrapper);
    outer.StandOn("//r", wrapper.GetDOMNode(true, false));
    OutputScope scope(wrapper);
    // A value that reads as two conditions is not read again in the queries below it.
    ASSERT_TRUE(wrapper.CreateQueryPath("//r/list[@k='a' ]"));
    scope.StandOn("//r/list[@k='x' and @l='y' ]", wrapper.FindOutputNode("//r/list", true, true));
    for (int i = 1; i <= 60; ++i) { // through the width at which children get indexed
        const std::string step = "/e[@k='" + std::to_string(i) + "' ]";
        const std::string query = "//r/list[@k='x' and @l='y' ]" + step;
        EXPECT_FALSE(wrapper.NodeExists(query, true));
        EXPECT_FALSE(wrapper.NodeExists("//f" + std::to_string(i), true));
        ASSERT_TRUE(i % 3 == 0 ? wrapper.CreateQueryPath("//r/list/e[" + std::to_string(i) + "]" + step.substr(2))
                               : wrapper.CreateQueryPath(query));
        wrapper.AppendElementValue(wrapper.GetDOMNode(true, false), "f" + std::to_string(i), "x", true);
        EXPECT_TRUE(wrapper.NodeExists(query, true)) << i;
        EXPECT_TRUE(wrapper.NodeExists("//r/list[@k='a' ]" + step, true)) << i;
        EXPECT_TRUE(wrapper.NodeExists("//f" + std::to_string(i), true)) << i;
    }
    ASSERT_TRUE(wrapper.CreateQueryPath("//r/list[@k='a' ]/e[30][@k='other' ]")); // takes the name of the 30th
    EXPECT_FALSE(wrapper.NodeExists("//r/list[@k='a' ]/e[@k='30' ]", true));
    EXPECT_TRUE(wrapper.NodeExists("//r/list[@k='a' ]/e[@k='other' ]", true));
    EXPECT_EQ(wrapper.FindOutputNode("//r/list[@k='a' ]/e[61]", true, true), nullptr);
}

} // namespace
} // namespace Framework
