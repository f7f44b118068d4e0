#pragma once

#include "Framework/TypedDataContainer.h"
#include "Framework/XMLSupport/XmlTree.h"

namespace Framework {

/// While it lives, issues that this thread logs are said to stand at that node. Scopes nest, the innermost counts.
///
/// With a feature the node is one of an override that this thread is merging: whoever opens such a place has looked at
/// the node's control words. The feature must outlive it.
class OverridePlace {
public:
    OverridePlace(const XmlTree* tree, NodeRef node, const zelString* feature = nullptr);
    ~OverridePlace();
    OverridePlace(const OverridePlace&) = delete;
    OverridePlace& operator=(const OverridePlace&) = delete;

    /// Fills file, line and column of an issue from the innermost scope.
    static void Describe(OverrideIssue& issue);

    /// Whether that is the node of an override that this thread is at.
    static bool IsAt(const XmlTree& tree, NodeRef node);
    /// The feature that this thread is merging from that tree, null when it is not.
    static const zelString* FeatureIn(const XmlTree& tree);

private:
    const XmlTree* m_tree;
    NodeRef m_node;
    const zelString* m_feature;
    const OverridePlace* m_outer;
};

/// Logs the object's last error as an override issue.
void LogLastError(TypedDataContainer& object, unsigned int line);

/// A node of an override, as messages name it: "State[Idle] of feature "Night"".
struct OverrideNode {
    const XmlTree& tree;
    NodeRef node;
    const zelString& feature;
    const zelString* key = nullptr; ///< of an entry of a keyed list
};

/// What the node asks for, or part of it, is not done: sets the error and logs it with the node's place.
void ReportOverride(TypedDataContainer& object, const OverrideNode& where, const std::string& what, unsigned int line);

} // namespace Framework
