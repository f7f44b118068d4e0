#pragma once

#include "Framework/Finding.h"
#include "Framework/XMLSupport/Document.h"

namespace Framework {

/// The name of a document that was written from a DOM, where nobody could look a place up.
inline constexpr const char* writtenDomName = "<DOM>";

/// Where an element or attribute begins, or the first character of a text that is no blank, and how far it goes in its
/// line: an element counts up to the end of its start tag. Nothing is known of node 0.
DocumentPlace PlaceOfNode(const Document& document, NodeRef node);

/// The same for a node of any tree; a DOM knows no places.
DocumentPlace PlaceOfNode(const XmlTree& tree, NodeRef node);

} // namespace Framework
