#pragma once

#include "Framework/LoadLimits.h"
#include "Framework/XMLSupport/DocumentData.h"
#include "Framework/XMLSupport/Lazy.h"
#include "Framework/XMLSupport/TextPlaces.h"
#include "Framework/XMLSupport/XmlTree.h"

#include <memory>
#include <string>
#include <string_view>

namespace Framework {

class NodeViews;

/// A loaded XML document: its text and the tree that reads it. Only a DocumentEditor changes it, and only while nobody
/// shares it; a shared one never changes and may be read from many threads.
///
/// CDATA sections are nodes of their own, also empty ones; neighbouring text is one node; white space, comments and
/// instructions are kept, outside the root too. Comments and instructions there are children of the document node; the
/// XML declaration is no node. Node numbers follow the order of the document until something is added.
class Document final : public XmlTree {
public:
    /// Throws ParseError, "sourceName:line:column: ...", when the bytes are no well-formed document within the limits,
    /// and std::bad_alloc.
    static std::shared_ptr<const Document> Parse(std::string bytes, std::string sourceName, const LoadLimits& limits);
    ~Document() override;
    /// A document of its own with the same content, numbers and changes.
    std::shared_ptr<Document> Copy() const;
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    NodeRef DocumentNode() const override { return Ref(DocumentData::kDocumentNode); }
    NodeRef Root() const override { return Ref(m_data.root); }
    NodeKind Kind(NodeRef node) const override { return Record(node).kind; }
    std::string_view Name(NodeRef node) const override { return m_data.names.Name(Record(node).name); }
    NodeRef Parent(NodeRef node) const override { return Ref(Record(node).parent); }
    NodeRef FirstChild(NodeRef node) const override { return Inner(node, &NodeRecord::Inner::firstChild); }
    NodeRef LastChild(NodeRef node) const override {
        return Ref(m_data.LastFrom(static_cast<std::uint32_t>(FirstChild(node))));
    }
    NodeRef NextSibling(NodeRef node) const override { return Ref(Record(node).next); }
    NodeRef PreviousSibling(NodeRef node) const override {
        return Ref(m_data.Previous(static_cast<std::uint32_t>(node)));
    }
    NodeRef FirstAttribute(NodeRef node) const override { return Inner(node, &NodeRecord::Inner::firstAttribute); }
    std::string_view Value(NodeRef node, std::string& /*room*/) const override {
        const NodeRecord& record = Record(node);
        if (record.IsInner() || record.kind == NodeKind::None) {
            return {};
        }
        const NodeRecord::Leaf& leaf = record.leaf;
        return leaf.holder == ValueHolder::Source
                   ? std::string_view(m_data.source.text).substr(leaf.valueBegin, leaf.valueLength)
                   : ValueElsewhere(leaf);
    }
    XALAN_CPP_NAMESPACE::XalanNode* View(NodeRef node) const override;

    /// The number that stands for the node's name in this document: equal names, equal numbers; 0 is no name.
    std::uint32_t NameNumber(NodeRef node) const { return Record(node).name; }
    /// 0 when no node of the document bears that name.
    std::uint32_t NumberOfName(std::string_view name) const { return m_data.names.Find(name); }
    /// Number of different names that nodes bear.
    std::size_t NameCount() const { return m_data.names.Count(); }

    const std::string& SourceName() const { return m_data.sourceName; }
    /// The text as UTF-8 without byte order mark: what ranges refer to.
    const std::string& Source() const { return m_data.source.text; }
    /// The document's bytes: those that were parsed, with only what was changed written anew. Throws WriteError when
    /// the result would not load again.
    std::string Bytes() const;
    /// As iconv knows it, with the byte order named.
    const std::string& EncodingName() const { return m_data.source.encoding; }
    bool HasByteOrderMark() const { return m_data.source.byteOrderMark; }

    /// An element from the '<' of its start tag to the '>' of its end tag, an attribute from its name to the closing
    /// quote, the others with their delimiters; the document node is the whole text. All ranges are those of the parsed
    /// text; of a node that was added, the place where it came in.
    ByteRange Range(NodeRef node) const { return {Record(node).begin, Record(node).end}; }
    /// The start tag of an element with its angle brackets.
    ByteRange StartTag(NodeRef element) const;
    /// What stands between the quotes of an attribute, as written.
    ByteRange ValueRange(NodeRef attribute) const;
    Place PlaceOf(NodeRef node) const { return PlaceAt(Record(node).begin); }
    Place PlaceAt(std::size_t offset) const;
    /// All nodes, attributes and the document node included.
    std::size_t NodeCount() const { return m_data.nodes.size() - 1; }

private:
    friend class DocumentEditor;

    Document(std::string bytes, std::string sourceName, const LoadLimits& limits);
    explicit Document(const DocumentData& data);
    std::string_view ValueElsewhere(const NodeRecord::Leaf& leaf) const;

    static NodeRef Ref(std::uint32_t number) { return NodeRef{number}; }
    const NodeRecord& Record(NodeRef node) const { return m_data.nodes[static_cast<std::size_t>(node)]; }
    NodeRef Inner(NodeRef node, std::uint32_t NodeRecord::Inner::*member) const {
        const NodeRecord& record = Record(node);
        return record.IsInner() ? Ref(record.inner.*member) : NodeRef::None;
    }

    DocumentData m_data;

    // Made when first asked for, and nothing of the document itself: a copy starts without them.
    mutable Lazy<TextPlaces> m_places;
    mutable Lazy<NodeViews> m_views;
};

} // namespace Framework
