#include "SchemaElement.h"

#include "Framework/XMLSupport/TreeReading.h"

#include <algorithm>

namespace Generator {

using Framework::NodeKind;
using Framework::NodeRef;

namespace {

std::string Join(std::initializer_list<std::string_view> names) {
    std::string joined;
    for (const std::string_view name : names) {
        joined += (joined.empty() ? "" : ", ");
        joined += name;
    }
    return joined.empty() ? "none" : joined;
}

constexpr std::string_view kBlanks = " \t\r\n";

std::string Quoted(std::string_view name) {
    return "'" + std::string(name) + "'";
}

} // namespace

Origin SchemaElement::OriginOf(NodeRef node) const {
    return {m_document->SourceName(), m_document->PlaceOf(node)};
}

void SchemaElement::AllowAttributes(std::initializer_list<std::string_view> names) const {
    for (NodeRef node = m_document->FirstAttribute(m_node); node != NodeRef::None;
         node = m_document->NextSibling(node)) {
        const std::string_view name = m_document->Name(node);
        if (std::find(names.begin(), names.end(), name) == names.end()) {
            Refuse(OriginOf(node), "attribute " + Quoted(name) + " is not allowed on " + std::string(Name()) +
                                       " here, expected: " + Join(names));
        }
    }
}

std::optional<Written> SchemaElement::Attribute(std::string_view name) const {
    const NodeRef node = FindAttribute(*m_document, m_node, name);
    if (node == NodeRef::None) {
        return std::nullopt;
    }
    std::string room;
    return Written{std::string(m_document->Value(node, room)), OriginOf(node)};
}

Written SchemaElement::Required(std::string_view name) const {
    std::optional<Written> attribute = Attribute(name);
    if (!attribute) {
        Refuse(Where(), std::string(Name()) + " without attribute " + Quoted(name));
    }
    return *std::move(attribute);
}

void SchemaElement::Demand(std::string_view name, std::string_view value) const {
    const Written attribute = Required(name);
    if (attribute.text != value) {
        Refuse(attribute.origin, std::string(name) + "=\"" + attribute.text + "\" is not allowed on " +
                                     std::string(Name()) + " here, expected \"" + std::string(value) + "\"");
    }
}

std::vector<SchemaElement> SchemaElement::Children() const {
    std::vector<SchemaElement> children;
    for (NodeRef node = m_document->FirstChild(m_node); node != NodeRef::None; node = m_document->NextSibling(node)) {
        const NodeKind kind = m_document->Kind(node);
        if (kind == NodeKind::Element) {
            children.emplace_back(*m_document, node);
        } else if (kind == NodeKind::Text) {
            RefuseText(node);
        } else if (kind != NodeKind::Comment) {
            Refuse(OriginOf(node), std::string(Name()) + " holds more than elements and comments");
        }
    }
    return children;
}

void SchemaElement::RefuseText(NodeRef node) const {
    const auto [begin, end] = m_document->Range(node);
    const std::string_view text = std::string_view(m_document->Source()).substr(begin, end - begin);
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first != std::string_view::npos) {
        Refuse({m_document->SourceName(), m_document->PlaceAt(begin + first)},
               std::string(Name()) + " holds text, expected elements only");
    }
}

std::string SchemaElement::Text() const {
    for (NodeRef node = m_document->FirstChild(m_node); node != NodeRef::None; node = m_document->NextSibling(node)) {
        if (m_document->Kind(node) != NodeKind::Text) {
            Refuse(OriginOf(node), std::string(Name()) + " holds more than text");
        }
    }
    return TextOf(*m_document, m_node);
}

std::optional<SchemaElement> ChildReader::TakeIf(std::string_view name) {
    if (!NextIs(name)) {
        return std::nullopt;
    }
    return m_children[m_next++];
}

SchemaElement ChildReader::Take(std::string_view name) {
    if (!NextIs(name)) {
        End(name);
        Refuse(m_parent.Where(), std::string(m_parent.Name()) + " without " + std::string(name));
    }
    return m_children[m_next++];
}

void ChildReader::End(std::string_view expected) const {
    if (!AtEnd()) {
        const SchemaElement& left = m_children[m_next];
        Refuse(left.Where(), std::string(left.Name()) + " is not allowed here in " + std::string(m_parent.Name()) +
                                 ", expected: " + std::string(expected));
    }
}

} // namespace Generator
