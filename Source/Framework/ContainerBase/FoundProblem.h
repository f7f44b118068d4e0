#pragma once

#include <string>
#include <vector>

#include "Framework/Finding.h"
#include "Framework/XMLSupport/XmlTree.h"

namespace Framework {

/// What is wrong with one node of a document, as it is found.
struct FoundProblem {
    FindingCode code = FindingCode::OtherIssue;
    std::string text;
    NodeRef where = NodeRef::None;   ///< the attribute that is to blame; None for the node itself
    std::vector<std::string> near{}; ///< known names that may have been meant
    NodeRef noteAt = NodeRef::None;  ///< another node of the document that belongs to it
    std::string note{};
};

} // namespace Framework
