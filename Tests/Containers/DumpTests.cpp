// Dumping by node: order of elements, texts that need care, roots, and that a dump loads as what was dumped.

#include "Containers/EveryClass.h"

#include <filesystem>
#include <fstream>

#include "FrameworkDataContainers/FrameworkDataContainers.h"

namespace {

/// Names of the child elements of the wrapper's root, in order, each run of equal names once.
std::vector<std::string> ElementOrder(XMLDataWrapper& wrapper) {
    const std::string text = wrapper.GetXMLText();
    std::vector<std::string> order;
    // Children of the root stand at two blanks of indentation, one a line.
    for (std::size_t at = text.find("\n  <"); at != std::string::npos; at = text.find("\n  <", at + 1)) {
        const std::size_t begin = at + 4;
        if (text[begin] != '/' && text[begin] != '!') {
            const std::string name = text.substr(begin, text.find_first_of(" />", begin) - begin);
            if (order.empty() || order.back() != name) {
                order.push_back(name);
            }
        }
    }
    return order;
}

std::unique_ptr<TypedDataContainer> MakeLoaded(CatalogClass type, unsigned seed, bool everything) {
    Samples::Random random(seed);
    auto object = type.Create(false);
    EXPECT_TRUE(
        LoadText(*object, Samples::ToXml(Samples::Make(type, std::string(type.ElementName()), random, 1, everything),
                                         random, true)));
    return object;
}

TEST(Dump, WritesFieldsInTableOrder) {
    ForEveryClass([](CatalogClass type) {
        const auto object = MakeLoaded(type, 1, true);
        FullFunctionXMLDataWrapper output;
        ASSERT_TRUE(output.CreateOutputDocument(std::string(type.ElementName()).c_str()));
        DOMNode* passed = nullptr;
        ASSERT_TRUE(object->DumpMergeContentsII(nullptr, &output, passed, false)) << object->GetLastError();
        EXPECT_EQ(passed, nullptr); // the root was there: nothing was hung
        std::vector<std::string> expected;
        for (const CatalogField& field : type.Fields()) {
            if (field.GetForm() != CatalogField::Attribute) {
                expected.emplace_back(field.Name());
            }
        }
        EXPECT_EQ(ElementOrder(output), expected) << output.GetXMLText();
    });
}

TEST(Dump, LoadsAsWhatWasDumped) {
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("dump-" + std::to_string(getpid()) + ".xml");
    ForEveryClass([&file](CatalogClass type) {
        for (unsigned seed = 1; seed <= 3; ++seed) {
            const auto object = MakeLoaded(type, seed, seed == 3);
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
    std::filesystem::remove(file);
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

TEST(Dump, DerivedClassSharesOneElementAndOverwritesAttributes) {
    StateActionRespType object(false);
    ASSERT_TRUE(
        LoadText(object, "<StateActionResp Result='3'><ActionRef>r</ActionRef><Unused>u</Unused></StateActionResp>"));
    FullFunctionXMLDataWrapper output;
    ASSERT_TRUE(output.CreateOutputDocument("StateActionResp"));
    DOMNode* passed = nullptr;
    ASSERT_TRUE(object.DumpMergeContentsII(nullptr, &output, passed, false));
    object.SetResult(4);
    ASSERT_TRUE(object.DumpMergeContentsII(nullptr, &output, passed, false));
    EXPECT_EQ(output.GetStringValue("@Result", false), "4");
    EXPECT_EQ(output.GetStringValue("ActionRef", false), "r");
    ASSERT_TRUE(output.LoadNodeList("Unused", "q", 0));
    EXPECT_EQ(output.GetNodeListLength("q"), 2); // elements are appended each time
}

TEST(Dump, WhatXmlCannotHoldIsRefusedAndNamedAndTheFileStays) {
    const std::filesystem::path file =
        std::filesystem::temp_directory_path() / ("refused-" + std::to_string(getpid()) + ".xml");
    std::ofstream(file) << "before";
    for (const char* const bad : {"\x01", "\xFF", "\xED\xA0\x80", "\xEF\xBF\xBE"}) {
        LoadConfigType object(false);
        ASSERT_TRUE(LoadText(object, "<LoadConfig><ThreadChildList UniqueName='A'><ChildThread "
                                     "UniqueName='T'/></ThreadChildList></LoadConfig>"));
        object.GetThreadChildList(0)->GetChildThread(0)->SetLibraryPath(bad);
        EXPECT_FALSE(object.SaveContents(file.c_str()));
        EXPECT_NE(object.GetLastError().find("LibraryPath"), std::string::npos) << object.GetLastError();
        EXPECT_EQ(object.BuildAndReturnDataContent(), nullptr);
    }
    std::string text;
    std::getline(std::ifstream(file), text);
    EXPECT_EQ(text, "before");
    std::filesystem::remove(file);
    LoadConfigType object(false);
    EXPECT_FALSE(object.SaveContents("/nonexistent/folder/file.xml"));
    EXPECT_NE(object.GetLastError().find("/nonexistent/folder"), std::string::npos) << object.GetLastError();
}

} // namespace
