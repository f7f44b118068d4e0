#pragma once

#include "Framework/XMLSupport/DomTree.h"

#include <functional>

namespace Framework {

/// A document without any node yet.
DomDocumentPtr NewDomDocument();

/// Called for every node that was copied, attributes included, the document node first.
using NodePairing = std::function<void(NodeRef source, xercesc::DOMNode* copy)>;

/// A copy of the whole tree as a Xerces DOM, in linear time. Names keep their prefixes and belong to no namespace, so
/// that a prefix nobody declared is no error. Throws std::runtime_error on what a DOM cannot hold.
DomDocumentPtr BuildDom(const XmlTree& tree, const NodePairing& pairing = {});

} // namespace Framework
