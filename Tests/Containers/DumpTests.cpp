// Dumping by node: roots, and that a dump loads as what was dumped.

#include "Commands.h"
#include "Containers/EveryClass.h"

#include <xercesc/dom/DOMElement.hpp>

#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

TEST(Dump, LoadsAsWhatWasDumped) {
    const Framework::TemporaryFolder folder;
    const std::string file = folder / "dump.xml";
    ForEveryClass([&file](CatalogClass type) {
        for (unsigned seed = 1; seed <= 3; ++seed) {
            const auto object = MakeLoaded(type, seed, seed == 3, true);
            ASSERT_TRUE(MergeText(*object, "F", "<" + std::string(type.ElementName()) + "/>"));
            const std::vector<std::string> lines = Samples::Lines(*object);
            ASSERT_TRUE(seed == 1 ? object->SaveContents(file.c_str()) : object->DumpMergeResults(file.c_str()));
            EXPECT_EQ(Samples::Lines(*object), lines);
            const auto again = type.Create(false);
            ASSERT_TRUE(again->LoadFromFile(nullptr, file.c_str(), false)) << again->GetLastError();
            EXPECT_EQ(Samples::Lines(*again), lines);
            EXPECT_EQ(again->GetFeatureID(), seed == 1 ? "" : "F"); // merge attributes only with DumpMergeResults
        }
    });
}

TEST(Dump, HangsBelowAParentOrAForeignRootAndPassesTheElementBack) {
    LoadConfigType object(false);
    ASSERT_TRUE(LoadText(object, "<LoadConfig><ThreadChildList UniqueName='A'/></LoadConfig>"));
    FullFunctionXMLDataWrapper output;
    ASSERT_TRUE(output.CreateOutputDocument("Other"));
    DOMNode* passed = nullptr;
    ASSERT_TRUE(object.DumpMergeContentsII(nullptr, &output, passed, false));
    EXPECT_EQ(passed, output.GetDOMNode("//Other/LoadConfig", true));
    DOMNode* const first = passed;
    ASSERT_TRUE(object.DumpMergeContentsII(first, &output, passed, false));
    EXPECT_NE(passed, first);
    EXPECT_EQ(passed, output.GetDOMNode("//LoadConfig/LoadConfig", true));
}

/// Changes its parent's element while that is being filled.
class MeddlingData : public StateActionDataType {
public:
    MeddlingData() : StateActionDataType(false) {}
    bool DumpMergeContentsII(DOMNode* parent, FullFunctionXMLDataWrapper*, DOMNode*&, bool) override {
        static_cast<xercesc::DOMElement*>(parent)->setAttribute(u"Result", u"meddled");
        return true;
    }
};

TEST(Dump, SetsTheAttributesAgainAfterTheParentClassDumpedAHostsObject) {
    ActionRespType object(false);
    ASSERT_TRUE(LoadText(object, "<ActionResp><PostActionResp Result='3'/></ActionResp>"));
    object.GetPostActionResp(0)->SetActionData(new MeddlingData);
    EXPECT_EQ(DumpedByNode(object).find("<ActionResp><PostActionResp Result=\"3\">"), 0U) << DumpedByNode(object);
}

} // namespace
