// Loading: every class from orderly and from disorderly documents, and what a load does to an object that is in use.

#include <memory>

#include <FrameworkDataContainers/FrameworkDataContainers.h>
#include <xalanc/XalanDOM/XalanDOMString.hpp>
#include <xalanc/XalanDOM/XalanNode.hpp>

#include "Commands.h"
#include "Containers/EveryClass.h"

namespace {

/// In order, and shuffled with unknown, wrongly spelt, prefixed and commented parts and CDATA between; nothing is left
/// of what was loaded before.
TEST(Load, HoldsWhatTheDocumentSays) {
    ForEveryClass([](CatalogClass type) {
        for (const bool fromScratch : {false, true}) {
            const auto object = type.Create(fromScratch);
            for (unsigned seed = 1; seed <= 4; ++seed) {
                Samples::Random random(seed);
                const Samples::Sample sample = Samples::Make(type, std::string(type.ElementName()), random);
                const std::string xml = Samples::ToXml(sample, random, fromScratch == (seed % 2 == 0));
                ASSERT_TRUE(LoadText(*object, xml)) << object->GetLastError();
                EXPECT_TRUE(object->Valid());
                ASSERT_EQ(Samples::Lines(*object), Samples::Lines(sample)) << xml;
            }
        }
    });
}

TEST(Load, WhatCannotBeReadOrMergedChangesNothing) {
    ForEveryClass([](CatalogClass type) {
        const auto object = type.Create(false);
        object->SetFeatureID("Base");
        ASSERT_TRUE(LoadText(*object, SampleText(type, 6)));
        const std::vector<std::string> before = Samples::Lines(*object);
        XMLDataWrapper empty, other;
        ASSERT_TRUE(other.LoadXMLText("<Other>\n <a/></Other>", false));
        EXPECT_FALSE(object->LoadFromDataPacket(nullptr, nullptr, false));
        EXPECT_FALSE(object->LoadFromDataPacket(nullptr, &empty, false));
        EXPECT_FALSE(object->LoadFromDataPacket(nullptr, &other, false));
        EXPECT_FALSE(object->LoadFromDOMNode(nullptr, nullptr, false));
        EXPECT_FALSE(object->LoadFromModel(nullptr, "no such model", "X", false));
        EXPECT_FALSE(object->LoadFromFile(nullptr, "/nonexistent/file.xml", false));
        EXPECT_NE(object->GetLastError().find("/nonexistent/file.xml"), std::string::npos) << object->GetLastError();

        const IssueRecorder recorder;
        EXPECT_FALSE(object->MergeDataMembers(&empty, "F"));
        EXPECT_EQ(object->GetLastError(), "MergeSource Not Loaded");
        EXPECT_EQ(object->GetLastErrorNum(), -1);
        EXPECT_FALSE(object->MergeFromDataPacket(nullptr, "F", &empty, true));
        EXPECT_FALSE(object->MergeFromDataPacket(nullptr, "F", nullptr, false));
        ASSERT_EQ(recorder.issues.size(), 3U);
        EXPECT_EQ(recorder.issues[0].FeatureID, "Base");
        EXPECT_EQ(recorder.issues[0].ContainerName, object->GetContainerName());
        EXPECT_EQ(recorder.issues[0].ErrorText, "MergeSource Not Loaded");
        EXPECT_FALSE(object->MergeFromDataPacket(nullptr, "F", &other, false));
        EXPECT_FALSE(object->MergeFromFile(nullptr, "/nonexistent/override.xml"));
        EXPECT_FALSE(object->MergeFromModel(nullptr, "none", "none"));
        EXPECT_FALSE(object->MergeFromDOMNode(nullptr, "F", nullptr));
        EXPECT_EQ(object->GetMergeAttributes(), "");
        EXPECT_EQ(Samples::Lines(*object), before);
        EXPECT_TRUE(object->Valid());
    });
}

/// Below another root, which may bear the feature: the object is found by its name.
TEST(Load, EverySourceLoadsAndMergesTheSame) {
    using Object = TypedDataContainer&;
    const Framework::TemporaryFolder folder;
    const std::string file = folder / "Late.xml";
    EXPECT_FALSE(TypedDataContainer::RegisterModel("model", "Somewhere", "<open>"));
    ForEveryClass([&file](CatalogClass type) {
        Samples::Random random(8);
        const Samples::Sample sample = Samples::Make(type, "Somewhere", random);
        Samples::Sample fresh = Samples::Read(*type.Create(false));
        fresh.name = "Somewhere";
        Samples::Merge(fresh, sample);
        const std::string element = Samples::ToXml(sample, random, false);
        const std::string inside = "><Before/>" + element.substr(element.find('\n') + 1) + "</Outer>";
        for (const std::string attribute : {"", " FeatureID='Night'"}) {
            const std::string xml = "<Outer" + attribute + inside;
            Framework::WriteText(file, xml);
            ASSERT_TRUE(TypedDataContainer::RegisterTemplate("store", "Somewhere", xml));
            ASSERT_TRUE(TypedDataContainer::RegisterModel("model", "Somewhere", xml));
            XMLDataWrapper wrapper;
            ASSERT_TRUE(wrapper.LoadXMLText(xml, false));
            const struct {
                const char* feature; ///< of what is merged, where the source names none
                std::function<bool(Object)> load;
                std::function<bool(Object)> merge;
            } sources[] = {
                {"Late", [&](Object o) { return o.LoadFromFile(nullptr, file.c_str(), false); },
                 [&](Object o) { return o.MergeFromFile(nullptr, file.c_str()); }},
                {"store", [](Object o) { return o.LoadFromTemplate(nullptr, "store", "Somewhere", false); },
                 [](Object o) { return o.MergeFromTemplate(nullptr, "store", "Somewhere"); }},
                {"store",
                 [](Object o) {
                     o.SetContainerName("Other");
                     return o.LoadFromTemplate(nullptr, "store", "Somewhere", "Any", false);
                 },
                 [](Object o) { return o.MergeFromTemplate(nullptr, "store", "Somewhere", "Any"); }},
                {"model", [](Object o) { return o.LoadFromModel(nullptr, "model", "Somewhere", false); },
                 [](Object o) { return o.MergeFromModel(nullptr, "model", "Somewhere"); }},
                {"F", [&](Object o) { return o.LoadFromDataPacket(nullptr, &wrapper, false); },
                 [&](Object o) { return o.MergeFromDataPacket(nullptr, "F", &wrapper, false); }},
                {"F",
                 [&](Object o) { return o.LoadFromDOMNode(nullptr, wrapper.GetDOMNode("//Somewhere", true), false); },
                 [&](Object o) { return o.MergeFromDOMNode(nullptr, "F", wrapper.GetDOMNode("//Somewhere", true)); }},
                {"F", [&](Object o) { return o.LoadFromDataPacket(nullptr, &wrapper, false); }, // which is a DOM now
                 [&](Object o) { return o.MergeFromDataPacket(nullptr, "F", &wrapper, false); }},
            };
            for (const auto& source : sources) {
                const auto loaded = type.Create(false), merged = type.Create(false);
                loaded->SetContainerName("Somewhere");
                merged->SetContainerName("Somewhere");
                EXPECT_TRUE(source.load(*loaded)) << source.feature << ": " << loaded->GetLastError();
                EXPECT_TRUE(source.merge(*merged)) << source.feature << ": " << merged->GetLastError();
                EXPECT_EQ(Samples::Lines(*loaded), Samples::Lines(sample)) << source.feature;
                EXPECT_EQ(Samples::Lines(*merged), Samples::Lines(fresh)) << source.feature;
                const bool isOwn = attribute.empty() || *source.feature == 'F';
                EXPECT_EQ(merged->GetMergeAttributes(),
                          std::string(" and @FeatureID='") + (isOwn ? source.feature : "Night") + "' ");
                const bool isFile = *source.feature == 'L';
                EXPECT_EQ(loaded->GetFeatureID(), isFile && !attribute.empty() ? "Night" : "");
            }
        }
    });
}

TEST(Load, DuplicateKeysAreReportedAndTheFirstStays) {
    ForEveryClass([](CatalogClass type) {
        for (const CatalogField& field : type.Fields()) {
            if (field.GetForm() != CatalogField::KeyedList || field.HasNumberedKeys()) {
                continue;
            }
            const std::string name(field.Name());
            const std::string root(type.ElementName());
            const std::string key = " " + std::string(field.KeyAttribute());
            const std::string xml = "<" + root + ">\n<" + name + key + "='7'>one</" + name + ">\n  <" + name + key +
                                    "='7'>two</" + name + "><" + name + "/><" + name + "/></" + root + ">";
            const IssueRecorder recorder;
            const auto object = type.Create(false);
            object->SetFeatureID("F");
            EXPECT_TRUE(LoadText(*object, xml));
            EXPECT_EQ(field.Length(*object), 2U) << name; // "7", and the empty key
            ASSERT_EQ(recorder.issues.size(), 2U) << name;
            EXPECT_EQ(recorder.issues[0].ErrorText, "Duplicate Index for " + name + ", Index = 7");
            EXPECT_EQ(recorder.issues[1].ErrorText, "Duplicate Index for " + name + ", Index = ");
            EXPECT_EQ(recorder.issues[0].FeatureID, "F");
            EXPECT_EQ(recorder.issues[0].ContainerName, root);
            EXPECT_GT(recorder.issues[0].SourceLine, 0U);
            EXPECT_EQ(object->GetLastErrorNum(), -2);
            if (field.GetValue() == CatalogField::String) {
                EXPECT_EQ(field.EntryText(*object, 0), "one");
            } else {
                EXPECT_EQ(recorder.issues[0].Line, 3U);
                EXPECT_EQ(recorder.issues[0].Column, 3U);
            }
        }
    });
}

/// Host's classes, each with one operation of its own: what the library does at once for its own classes goes through
/// them. The nodes they are handed are views of the elements.
class HostsThread : public ChildThreadType {
public:
    using ChildThreadType::ChildThreadType;
    bool PopulateDataMembers(XalanNode* pNode) override {
        isOnElement = pNode->getNodeName() == XALAN_CPP_NAMESPACE::XalanDOMString("ChildThread");
        return ChildThreadType::PopulateDataMembers(pNode);
    }
    bool isOnElement = false;
};

class HostsList : public ThreadChildListType {
public:
    using ThreadChildListType::ThreadChildListType;
    void AddChildThread(XMLDataWrapper* pData, XalanNode* spNode, const zelString& sName) override {
        auto thread = std::make_unique<HostsThread>(false);
        ASSERT_TRUE(thread->SetContainedDataPtr(pData, spNode, false, true));
        AddNewChildThread(thread.release(), sName);
    }
};

class HostsResponse : public ActionRespType {
public:
    using ActionRespType::ActionRespType;
    bool SetContainedDataPtr(XMLDataWrapper* pData, XalanNode* spNode, bool bReadOnly, bool bNested) override {
        ++stood;
        return ActionRespType::SetContainedDataPtr(pData, spNode, bReadOnly, bNested);
    }
    int stood = 0;
};

TEST(Load, GoesThroughTheOperationsOfAHostsClass) {
    HostsList list(false);
    ASSERT_TRUE(LoadText(list, "<ThreadChildList><ChildThread UniqueName='A'><LibraryPath>p</LibraryPath></ChildThread>"
                               "<ChildThread UniqueName='B'/></ThreadChildList>"))
        << list.GetLastError();
    ASSERT_EQ(list.GetChildThreadLength(), 2);
    auto* const thread = dynamic_cast<HostsThread*>(list.GetChildThread("A"));
    ASSERT_NE(thread, nullptr);
    EXPECT_TRUE(thread->isOnElement);
    EXPECT_EQ(thread->GetLibraryPath(), "p");

    ActionItemType item(false);
    auto* const response = new HostsResponse(false);
    item.SetActionResp(response);
    XMLDataWrapper wrapper;
    ASSERT_TRUE(wrapper.LoadXMLText("<ActionItem><ActionResp><Doc Index='1'>d</Doc></ActionResp></ActionItem>", false));
    ASSERT_TRUE(item.SetContainedDataPtr(&wrapper, nullptr, false, false)); // populates without taking the child out
    EXPECT_EQ(response->stood, 1);
    EXPECT_EQ(response->GetDoc(0), "d");
}

} // namespace
