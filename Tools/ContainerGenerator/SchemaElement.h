#pragma once

#include "Schema.h"

#include "Framework/XMLSupport/Document.h"

#include <initializer_list>
#include <string_view>

namespace Generator {

/// An element of a schema, read against a whitelist: what the reader does not ask for is refused where it stands.
class SchemaElement {
public:
    SchemaElement(const Framework::Document& document, Framework::NodeRef node) : m_document(&document), m_node(node) {}

    std::string_view Name() const { return m_document->Name(m_node); }
    Origin Where() const { return OriginOf(m_node); }

    /// Refuses every attribute that is not among these.
    void AllowAttributes(std::initializer_list<std::string_view> names) const;
    std::optional<Written> Attribute(std::string_view name) const;
    Written Required(std::string_view name) const;
    /// Refuses any other value of the attribute.
    void Demand(std::string_view name, std::string_view value) const;

    /// The child elements; text between them is refused.
    std::vector<SchemaElement> Children() const;
    /// The text of an element without children.
    std::string Text() const;

private:
    Origin OriginOf(Framework::NodeRef node) const;
    /// Refuses a text that is more than blanks.
    void RefuseText(Framework::NodeRef node) const;

    const Framework::Document* m_document;
    Framework::NodeRef m_node;
};

/// The children of an element, taken one after the other in the order that a schema prescribes.
class ChildReader {
public:
    explicit ChildReader(const SchemaElement& parent) : m_parent(parent), m_children(parent.Children()) {}

    bool AtEnd() const { return m_next == m_children.size(); }
    bool NextIs(std::string_view name) const { return !AtEnd() && m_children[m_next].Name() == name; }
    std::optional<SchemaElement> TakeIf(std::string_view name);
    SchemaElement Take(std::string_view name);
    /// Refuses what is left; `expected` tells what could have stood there.
    void End(std::string_view expected) const;

private:
    SchemaElement m_parent;
    std::vector<SchemaElement> m_children;
    std::size_t m_next = 0;
};

} // namespace Generator
