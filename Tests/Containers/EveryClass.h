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

/// Merges from text through a wrapper that is gone when this returns.
inline bool MergeText(TypedDataContainer& object, const std::string& feature, const std::string& xml) {
    XMLDataWrapper wrapper;
    EXPECT_TRUE(wrapper.LoadXMLText(xml, false)) << wrapper.GetLastError();
    return object.MergeFromDataPacket(nullptr, feature, &wrapper, false);
}
