#include "Framework/ContainerBase/OverrideLog.h"

#include <cstdio>
#include <mutex>

#include "Framework/ContainerBase/ContainerAccess.h"

namespace Framework {

namespace {

thread_local const OverridePlace* innermostPlace = nullptr;

struct Handler {
    TypedDataContainer::OverrideIssueHandler function = nullptr;
    void* context = nullptr;
};

std::mutex& HandlerMutex() {
    static std::mutex mutex;
    return mutex;
}

Handler& InstalledHandler() {
    static Handler handler;
    return handler;
}

void PrintIssue(const OverrideIssue& issue) {
    zelString text;
    if (issue.Line > 0) {
        text.Format("%s:%u:%u: ", issue.File.c_str(), issue.Line, issue.Column);
    }
    zelString what;
    what.Format("%s: %s (feature \"%s\", reported at line %u)\n", issue.ContainerName.c_str(), issue.ErrorText.c_str(),
                issue.FeatureID.c_str(), issue.SourceLine);
    text += what;
    std::fputs(text.c_str(), stderr); // one write, so that the lines of several threads do not mix
}

} // namespace

OverridePlace::OverridePlace(const XmlTree* tree, NodeRef node, const zelString* feature)
    : m_tree(tree), m_node(node), m_feature(feature), m_outer(innermostPlace) {
    innermostPlace = this;
}

OverridePlace::~OverridePlace() {
    innermostPlace = m_outer;
}

bool OverridePlace::IsAt(const XmlTree& tree, NodeRef node) {
    return innermostPlace != nullptr && innermostPlace->m_feature != nullptr && innermostPlace->m_tree == &tree &&
           innermostPlace->m_node == node;
}

const zelString* OverridePlace::FeatureIn(const XmlTree& tree) {
    return innermostPlace != nullptr && innermostPlace->m_tree == &tree ? innermostPlace->m_feature : nullptr;
}

void OverridePlace::Describe(OverrideIssue& issue) {
    const OverridePlace* const place = innermostPlace;
    const auto* const document = place == nullptr ? nullptr : dynamic_cast<const Document*>(place->m_tree);
    if (document == nullptr || place->m_node == NodeRef::None) {
        return;
    }
    const Place where = document->PlaceOf(place->m_node);
    issue.File = document->SourceName();
    issue.Line = static_cast<unsigned int>(where.line);
    issue.Column = static_cast<unsigned int>(where.column);
}

void LogLastError(TypedDataContainer& object, unsigned int line) {
    TypedDataContainer::LogFeatureOverrideIssue(object.GetFeatureID(), object.GetContainerName(), object.GetLastError(),
                                                line);
}

void ReportOverride(TypedDataContainer& object, const OverrideNode& where, const std::string& what, unsigned int line) {
    const OverridePlace place(&where.tree, where.node, &where.feature);
    std::string name(where.tree.Name(where.node));
    if (where.key != nullptr) {
        name += "[" + *where.key + "]";
    }
    object.SetLastError(-1, "%s of feature \"%s\": %s", name.c_str(), where.feature.c_str(), what.c_str());
    LogLastError(object, line);
}

} // namespace Framework

void TypedDataContainer::LogFeatureOverrideIssue(zelString sFeatureID, zelString sContainerName, zelString sError,
                                                 unsigned int uLine) {
    OverrideIssue issue{std::move(sFeatureID), std::move(sContainerName), std::move(sError), uLine, {}, 0, 0};
    Framework::OverridePlace::Describe(issue);
    Framework::Handler handler;
    {
        const std::lock_guard lock(Framework::HandlerMutex());
        handler = Framework::InstalledHandler();
    }
    if (handler.function != nullptr) {
        handler.function(handler.context, issue);
    } else {
        Framework::PrintIssue(issue);
    }
}

void TypedDataContainer::SetOverrideIssueHandler(OverrideIssueHandler pHandler, void* pContext) {
    const std::lock_guard lock(Framework::HandlerMutex());
    Framework::InstalledHandler() = {pHandler, pContext};
}
