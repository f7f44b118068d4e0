#pragma once

#include "Framework/Finding.h"
#include "Framework/XMLSupport/Document.h"

namespace Framework {

/// Where an element or attribute begins, and how far it goes in its line: an element counts up to the end of its start
/// tag. Nothing is known of node 0.
DocumentPlace PlaceOfNode(const Document& document, NodeRef node);

/// The same for a node of any tree; a DOM knows no places.
DocumentPlace PlaceOfNode(const XmlTree& tree, NodeRef node);

} // namespace Framework
