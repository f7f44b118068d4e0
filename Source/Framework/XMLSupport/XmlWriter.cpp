#include "Framework/XMLSupport/XmlWriter.h"

#include "Framework/XMLSupport/DomTree.h"
#include "Framework/XMLSupport/NodePath.h"
#include "Framework/XMLSupport/Utf.h"
#include "Framework/XMLSupport/XmlEscapes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <unordered_set>
#include <vector>

namespace Framework {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

bool IsBlank(std::string_view text) {
    return text.find_first_not_of(kBlanks) == std::string_view::npos;
}

class Writer {
public:
    Writer(const XmlTree& tree, const WriteOptions& options)
        : m_tree(tree), m_dom(dynamic_cast<const DomTree*>(&tree)), m_indent(options.indent) {}

    void Write(NodeRef top);
    void WriteDeclaration() { m_xml.append(R"(<?xml version="1.0" encoding="UTF-8"?>)").push_back('\n'); }
    std::string Take() { return std::move(m_xml); }

private:
    /// How the children of an open node are set.
    enum class Layout { AsIs, Lines };

    /// An element that is written up to its first child.
    struct OpenElement {
        NodeRef node;
        std::string_view name;
        Layout layout;
    };

    bool Open(NodeRef node);
    NodeRef Close();
    void WriteStartTag(NodeRef element, std::string_view name, bool isEmpty);
    void WriteAttributes(NodeRef element);
    void WriteText(NodeRef text);
    void WriteComment(NodeRef comment);
    void WriteInstruction(NodeRef instruction);
    void BreakLine();
    Layout LayoutOf(NodeRef firstChild);
    bool IsLaidOut() const { return !m_open.empty() && m_open.back().layout == Layout::Lines; }
    void CheckDocument(NodeRef document) const;
    std::string_view CheckedName(NodeRef node);
    std::string_view CheckedValue(NodeRef node);
    void CheckValue(NodeRef node, std::string_view value) const;
    [[noreturn]] void Refuse(NodeRef node, const std::string& what) const;

    const XmlTree& m_tree;
    const DomTree* m_dom;
    bool m_indent;
    std::string m_xml;
    std::string m_room;
    std::vector<OpenElement> m_open;
    std::vector<std::string_view> m_attributeNames;
    std::array<const char*, 64> m_seenNames = {}; ///< some of the good ones, each where its address puts it
    std::unordered_set<const char*> m_goodNames;  ///< where the tree keeps those that were checked, each once
};

void Writer::Refuse(NodeRef node, const std::string& what) const {
    throw WriteError("cannot write " + NodePath(m_tree, node) + ": " + what);
}

std::string_view Writer::CheckedName(NodeRef node) {
    const std::string_view name = m_tree.Name(node);
    const char*& seen = m_seenNames[(reinterpret_cast<std::uintptr_t>(name.data()) >> 4U) % m_seenNames.size()];
    if (seen == name.data()) {
        return name;
    }
    if (m_goodNames.count(name.data()) == 0) {
        if (!IsXmlName(name)) {
            Refuse(node, "that is no XML name");
        }
        m_goodNames.insert(name.data());
    }
    seen = name.data();
    return name;
}

std::string_view Writer::CheckedValue(NodeRef node) {
    const std::string_view value = m_tree.Value(node, m_room);
    CheckValue(node, value);
    return value;
}

void Writer::CheckValue(NodeRef node, std::string_view value) const {
    const bool isAllowed = m_dom != nullptr && FindForbidden(value) == std::string_view::npos; // was UTF-16 just now
    if (const std::string forbidden = isAllowed ? std::string() : DescribeForbidden(value); !forbidden.empty()) {
        Refuse(node, forbidden + " is not allowed in XML");
    }
    if (m_dom != nullptr && value.find("\xEF\xBF\xBD") != std::string_view::npos && DomTree::HasLoneSurrogate(node)) {
        Refuse(node, "half a surrogate pair is not allowed in XML");
    }
}

void Writer::CheckDocument(NodeRef document) const {
    if (m_tree.Root() == NodeRef::None) {
        Refuse(document, "the document has no root element");
    }
    for (NodeRef node = m_tree.FirstChild(document); node != NodeRef::None; node = m_tree.NextSibling(node)) {
        switch (m_tree.Kind(node)) {
        case NodeKind::Element:
            if (node != m_tree.Root()) {
                Refuse(node, "a document has one root element only");
            }
            break;
        case NodeKind::Text:
        case NodeKind::CData:
            Refuse(document, "text cannot stand outside the root element");
        default:
            break;
        }
    }
}

/// Lines are for elements with elements in them: blanks alone are the value of an element that holds nothing else.
Writer::Layout Writer::LayoutOf(NodeRef firstChild) {
    if (!m_indent || (!m_open.empty() && !IsLaidOut())) {
        return Layout::AsIs;
    }
    bool holdsElements = false;
    bool holdsTexts = false;
    for (NodeRef child = firstChild; child != NodeRef::None; child = m_tree.NextSibling(child)) {
        const NodeKind kind = m_tree.Kind(child);
        if (kind == NodeKind::CData) {
            return Layout::AsIs;
        }
        holdsElements = holdsElements || kind == NodeKind::Element;
        holdsTexts = holdsTexts || kind == NodeKind::Text;
    }
    if (!holdsElements) { // most have one text, which need not be looked at
        return Layout::AsIs;
    }
    for (NodeRef child = holdsTexts ? firstChild : NodeRef::None; child != NodeRef::None;
         child = m_tree.NextSibling(child)) {
        if (m_tree.Kind(child) == NodeKind::Text && !IsBlank(m_tree.Value(child, m_room))) {
            return Layout::AsIs;
        }
    }
    return Layout::Lines;
}

void Writer::BreakLine() {
    if (!m_xml.empty() && m_xml.back() != '\n') {
        m_xml.push_back('\n');
    }
}

void Writer::WriteAttributes(NodeRef element) {
    m_attributeNames.clear();
    bool isAscending = true;
    for (NodeRef attribute = m_tree.FirstAttribute(element); attribute != NodeRef::None;
         attribute = m_tree.NextSibling(attribute)) {
        const std::string_view name = CheckedName(attribute);
        m_xml.append(1, ' ').append(name).append("=\"");
        const std::string_view value = m_tree.Value(attribute, m_room);
        if (NeedsNoEscape(value)) {
            m_xml.append(value);
        } else {
            CheckValue(attribute, value);
            AppendEscapedAttribute(m_xml, value);
        }
        m_xml.push_back('"');
        isAscending = isAscending && (m_attributeNames.empty() || m_attributeNames.back() < name);
        m_attributeNames.push_back(name);
    }
    if (isAscending) { // a DOM sorts them
        return;
    }
    // A DOM can hold two of one name when they are of two namespaces.
    std::sort(m_attributeNames.begin(), m_attributeNames.end());
    const auto twice = std::adjacent_find(m_attributeNames.begin(), m_attributeNames.end());
    if (twice != m_attributeNames.end()) {
        Refuse(element, "attribute " + std::string(*twice) + " stands there twice");
    }
}

void Writer::WriteStartTag(NodeRef element, std::string_view name, bool isEmpty) {
    m_xml.append(1, '<').append(name);
    WriteAttributes(element);
    m_xml.append(isEmpty ? "/>" : ">");
}

void Writer::WriteText(NodeRef text) {
    const std::string_view value = m_tree.Value(text, m_room);
    if (NeedsNoEscape(value)) {
        m_xml.append(value);
    } else {
        CheckValue(text, value);
        AppendEscapedText(m_xml, value);
    }
}

void Writer::WriteComment(NodeRef comment) {
    const std::string_view text = CheckedValue(comment);
    if (text.find("--") != std::string_view::npos || (!text.empty() && text.back() == '-')) {
        Refuse(comment, "a comment can neither hold \"--\" nor end with \"-\"");
    }
    m_xml.append("<!--").append(text).append("-->");
}

void Writer::WriteInstruction(NodeRef instruction) {
    const std::string_view target = CheckedName(instruction);
    if (target.size() == 3 && (target[0] | 0x20) == 'x' && (target[1] | 0x20) == 'm' && (target[2] | 0x20) == 'l') {
        Refuse(instruction, "a processing instruction cannot be called \"xml\"");
    }
    m_xml.append("<?").append(target);
    const std::string_view data = CheckedValue(instruction);
    if (data.find("?>") != std::string_view::npos) {
        Refuse(instruction, "a processing instruction cannot hold \"?>\"");
    }
    if (!data.empty()) {
        m_xml.append(1, ' ').append(data);
    }
    m_xml.append("?>");
}

/// Writes a node up to its first child. True when it has children, and is open now.
bool Writer::Open(NodeRef node) {
    if (m_dom != nullptr) {
        DomTree::FetchAhead(node);
    }
    const NodeKind kind = m_tree.Kind(node);
    if (IsLaidOut()) {
        if (kind == NodeKind::Text) {
            return false; // blanks only, else there were no lines here
        }
        m_xml.push_back('\n');
        m_xml.append(2 * m_open.size(), ' ');
    }
    switch (kind) {
    case NodeKind::Element: {
        const std::string_view name = CheckedName(node);
        const NodeRef child = m_tree.FirstChild(node);
        WriteStartTag(node, name, child == NodeRef::None);
        if (child != NodeRef::None) {
            m_open.push_back({node, name, LayoutOf(child)});
        }
        return child != NodeRef::None;
    }
    case NodeKind::Text:
        WriteText(node);
        break;
    case NodeKind::CData:
        AppendCData(m_xml, CheckedValue(node));
        break;
    case NodeKind::Comment:
        WriteComment(node);
        break;
    case NodeKind::Instruction:
        WriteInstruction(node);
        break;
    default:
        Refuse(node, "only elements, texts, CDATA sections, comments and processing instructions can be written");
    }
    return false;
}

/// Ends the element that was opened last, and gives it back.
NodeRef Writer::Close() {
    const OpenElement element = m_open.back();
    m_open.pop_back();
    if (element.layout == Layout::Lines) {
        m_xml.push_back('\n');
        m_xml.append(2 * m_open.size(), ' ');
    }
    m_xml.append("</").append(element.name).push_back('>');
    return element.node;
}

void Writer::Write(NodeRef top) {
    if (m_tree.Kind(top) == NodeKind::Document) {
        CheckDocument(top);
        for (NodeRef node = m_tree.FirstChild(top); node != NodeRef::None; node = m_tree.NextSibling(node)) {
            Write(node);
            BreakLine();
        }
        return;
    }
    NodeRef node = top;
    for (;;) {
        if (Open(node)) {
            node = m_tree.FirstChild(node);
            continue;
        }
        NodeRef next = NodeRef::None;
        while (node != top && (next = m_tree.NextSibling(node)) == NodeRef::None) {
            node = Close();
        }
        if (node == top) {
            return;
        }
        node = next;
    }
}

} // namespace

std::string WriteXml(const XmlTree& tree, NodeRef top, const WriteOptions& options) {
    Writer writer(tree, options);
    if (options.declaration) {
        writer.WriteDeclaration();
    }
    writer.Write(top);
    return writer.Take();
}

} // namespace Framework
