#pragma once

#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class DOMAttr;
class DOMElement;
class DOMNode;
XERCES_CPP_NAMESPACE_END

/// Ways between the nodes of a DOM that Xerces has too, where for each step it casts nodes from one base class to
/// another at run time: half of the instructions of a dump were such casts. Elements, texts and CDATA sections of
/// exactly the classes that createElement & co. make are known here without a cast; for any other node Xerces does it.
namespace Framework {

/// As parent.appendChild(child), with the same exceptions.
xercesc::DOMNode* AppendNode(xercesc::DOMNode& parent, xercesc::DOMNode& child);

/// As attribute.setValue(value) and element.setAttributeNode(&attribute), for an attribute that was just made and an
/// element that has none of its name.
void AddAttribute(xercesc::DOMElement& element, xercesc::DOMAttr& attribute, const XMLCh* value);

/// As attribute.getValue().
const XMLCh* ValueOf(const xercesc::DOMAttr& attribute);

/// As node.getParentNode().
xercesc::DOMNode* ParentOf(const xercesc::DOMNode& node);

} // namespace Framework
