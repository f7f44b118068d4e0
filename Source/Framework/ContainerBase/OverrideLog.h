#pragma once

#include "Framework/TypedDataContainer.h"
#include "Framework/XMLSupport/XmlTree.h"

namespace Framework {

/// While it lives, issues that this thread logs are said to stand at that node. Scopes nest, the innermost counts.
class OverridePlace {
public:
    OverridePlace(const XmlTree* tree, NodeRef node);
    ~OverridePlace();
    OverridePlace(const OverridePlace&) = delete;
    OverridePlace& operator=(const OverridePlace&) = delete;

    /// Fills file, line and column of an issue from the innermost scope.
    static void Describe(OverrideIssue& issue);

private:
    const XmlTree* m_tree;
    NodeRef m_node;
    const OverridePlace* m_outer;
};

/// Logs the object's last error as an override issue.
void LogLastError(TypedDataContainer& object, unsigned int line);

} // namespace Framework
