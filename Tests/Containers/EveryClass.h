#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "Containers/Sample.h"

/// Failures show texts as texts.
inline void PrintTo(const zelString& text, std::ostream* out) {
    *out << '"' << text.c_str() << '"';
}

/// Runs a check for every class of the catalogue, with the class named when it fails.
inline void ForEveryClass(const std::function<void(CatalogClass)>& check) {
    const std::vector<CatalogClass> classes = ContainerCatalog::Classes();
    ASSERT_FALSE(classes.empty());
    for (const CatalogClass& type : classes) {
        SCOPED_TRACE(std::string(type.Name()));
        check(type);
    }
}

/// Runs a check for everything that hangs below an object.
inline void ForEveryPart(TypedDataContainer& object, const std::function<void(TypedDataContainer&)>& check) {
    for (const CatalogField& field : ContainerCatalog::ClassOf(object).Fields()) {
        std::vector<TypedDataContainer*> parts{field.GetChild(object)};
        for (std::size_t i = 0; i < field.Length(object); ++i) {
            parts.push_back(field.Entry(object, i));
        }
        for (TypedDataContainer* const part : parts) {
            if (part != nullptr) {
                check(*part);
                ForEveryPart(*part, check);
            }
        }
    }
}

/// A made-up document of the class.
inline std::string SampleText(CatalogClass type, unsigned seed, bool everything = false, bool noise = false) {
    Samples::Random random(seed);
    const Samples::Sample sample = Samples::Make(type, std::string(type.ElementName()), random, 1, everything);
    return Samples::ToXml(sample, random, noise);
}

/// Collects what goes to the override log while it lives.
class IssueRecorder {
public:
    IssueRecorder() { TypedDataContainer::SetOverrideIssueHandler(&Record, this); }
    ~IssueRecorder() { TypedDataContainer::SetOverrideIssueHandler(nullptr, nullptr); }
    IssueRecorder(const IssueRecorder&) = delete;
    IssueRecorder& operator=(const IssueRecorder&) = delete;

    std::vector<OverrideIssue> issues;

private:
    static void Record(void* context, const OverrideIssue& issue) {
        static_cast<IssueRecorder*>(context)->issues.push_back(issue);
    }
};

/// Loads from text through a wrapper that is gone when this returns.
inline bool LoadText(TypedDataContainer& object, const std::string& xml, bool readOnly = false) {
    XMLDataWrapper wrapper;
    EXPECT_TRUE(wrapper.LoadXMLText(xml, readOnly)) << wrapper.GetLastError();
    return object.LoadFromDataPacket(nullptr, &wrapper, readOnly);
}

/// An object with a wrapper of its own, loaded from a made-up document.
inline std::unique_ptr<TypedDataContainer> MakeLoaded(CatalogClass type, unsigned seed, bool everything = false,
                                                      bool noise = false) {
    std::unique_ptr<TypedDataContainer> object = type.Create(false);
    EXPECT_TRUE(LoadText(*object, SampleText(type, seed, everything, noise))) << object->GetLastError();
    return object;
}

/// Merges from text through a wrapper that is gone when this returns.
inline bool MergeText(TypedDataContainer& object, const std::string& feature, const std::string& xml) {
    XMLDataWrapper wrapper;
    EXPECT_TRUE(wrapper.LoadXMLText(xml, false)) << wrapper.GetLastError();
    return object.MergeFromDataPacket(nullptr, feature, &wrapper, false);
}

/// A text of the library's own writing without declaration and indentation.
inline std::string Compact(XMLDataWrapper& output) {
    const std::string text = output.GetXMLText();
    std::string compact;
    for (std::size_t at = text.find('\n') + 1; at < text.size(); ++at) {
        if (text[at] == '\n') {
            at = text.find_first_not_of(" \n", at) - 1;
        } else {
            compact += text[at];
        }
    }
    return compact;
}

/// What the dump by node writes below nothing.
inline std::string DumpedByNode(TypedDataContainer& object) {
    const std::unique_ptr<XMLDataWrapper> output(object.BuildAndReturnDataContent());
    EXPECT_NE(output, nullptr) << object.GetLastError();
    return output == nullptr ? std::string() : Compact(*output);
}

/// What the dump by query makes of a document.
inline std::string DumpedByQuery(TypedDataContainer& object, const std::string& into, const char* parent = "",
                                 int position = -1) {
    FullFunctionXMLDataWrapper output;
    EXPECT_TRUE(output.LoadXMLText(into, false)) << output.GetLastError();
    EXPECT_NE(output.GetOutputDocument(), nullptr);
    EXPECT_TRUE(object.DumpMergeContents(parent, &output, position, false)) << object.GetLastError();
    return Compact(output);
}

/// Names of the elements right below the root of a compact text, in order.
inline std::vector<std::string> ElementNames(const std::string& compact) {
    std::vector<std::string> names;
    int depth = 0;
    for (std::size_t at = compact.find('<'); at != std::string::npos; at = compact.find('<', at + 1)) {
        const bool isEnd = compact[at + 1] == '/';
        if (depth == 1 && !isEnd) {
            names.push_back(compact.substr(at + 1, compact.find_first_of(" />", at) - at - 1));
        }
        depth += isEnd ? -1 : compact[compact.find('>', at) - 1] == '/' ? 0 : 1;
    }
    return names;
}

/// Loads from text and keeps the wrapper, so that what an update writes can be looked at.
struct Loaded {
    Loaded(CatalogClass type, const std::string& xml) : object(type.Create(false)) {
        EXPECT_TRUE(wrapper.LoadXMLText(xml, false)) << wrapper.GetLastError();
        EXPECT_TRUE(object->LoadFromDataPacket(nullptr, &wrapper, false));
    }
    std::string Text() { return wrapper.GetXMLText(); }

    XMLDataWrapper wrapper;
    std::unique_ptr<TypedDataContainer> object;
};
