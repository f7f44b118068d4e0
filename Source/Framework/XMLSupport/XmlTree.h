#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <xalanc/Include/PlatformDefinitions.hpp>

namespace XALAN_CPP_NAMESPACE {
class XalanNode;
}

namespace Framework {

/// A node of an XmlTree: its number in a reading tree, its address in a DOM. Only the tree that gave it can read it.
enum class NodeRef : std::uintptr_t { None = 0 };

enum class NodeKind : std::uint8_t { None, Element, Attribute, Text, CData, Comment, Instruction, Document, Other };

/// One read access to XML, whatever holds it: the reading tree of a loaded document or a Xerces DOM.
///
/// Wrapper operations, paths, the populate walk and the writer are written against it once. All references must come
/// from the same tree. Reading is const and, for a reading tree, safe from many threads; a DOM is read by one thread at
/// a time.
class XmlTree {
public:
    virtual ~XmlTree() = default;

    /// The node above the root element; never None while a document is there.
    virtual NodeRef DocumentNode() const = 0;
    /// The root element, None in a document that has none yet.
    virtual NodeRef Root() const = 0;
    virtual NodeKind Kind(NodeRef node) const = 0;
    /// Name of an element or attribute with its prefix, target of an instruction; empty for the rest. Lives as long as
    /// the tree.
    virtual std::string_view Name(NodeRef node) const = 0;
    /// The parent; for an attribute the element that carries it.
    virtual NodeRef Parent(NodeRef node) const = 0;
    virtual NodeRef FirstChild(NodeRef node) const = 0;
    virtual NodeRef LastChild(NodeRef node) const = 0;
    /// The next node under the same parent; for an attribute the next attribute of its element.
    virtual NodeRef NextSibling(NodeRef node) const = 0;
    virtual NodeRef PreviousSibling(NodeRef node) const = 0;
    virtual NodeRef FirstAttribute(NodeRef element) const = 0;
    /// Value of an attribute, text, CDATA section, comment or instruction (UTF-8); empty for the rest. The view points
    /// into the tree or into `room`, and lives as long as both.
    virtual std::string_view Value(NodeRef node, std::string& room) const = 0;
    /// The node as callers of the Xalan interface see it. Owned by the tree, lives as long as it.
    virtual XALAN_CPP_NAMESPACE::XalanNode* View(NodeRef node) const = 0;

protected:
    XmlTree() = default;
    XmlTree(const XmlTree&) = default;
    XmlTree& operator=(const XmlTree&) = default;
};

} // namespace Framework
