#include "Framework/XMLSupport/Document.h"

#include "Framework/XMLSupport/DocumentParser.h"
#include "Framework/XMLSupport/DocumentWriter.h"
#include "Framework/XMLSupport/NodeViews.h"

#include <utility>

namespace Framework {

std::shared_ptr<const Document> Document::Parse(std::string bytes, std::string sourceName, const LoadLimits& limits) {
    return std::shared_ptr<const Document>(
        new Document(ParseDocument(std::move(bytes), std::move(sourceName), limits)));
}

Document::Document(DocumentData data) : m_data(std::move(data)) {}

Document::~Document() = default;

std::shared_ptr<Document> Document::Copy() const {
    return std::shared_ptr<Document>(new Document(m_data));
}

std::string_view Document::Value(NodeRef node, std::string& /*room*/) const {
    const NodeRecord& record = Record(node);
    if (record.IsInner() || record.kind == NodeKind::None) {
        return {};
    }
    const NodeRecord::Leaf& leaf = record.leaf;
    switch (leaf.holder) {
    case ValueHolder::Source:
        return std::string_view(m_data.source.text).substr(leaf.valueBegin, leaf.valueLength);
    case ValueHolder::Pool:
        return std::string_view(m_data.pool).substr(leaf.valueBegin, leaf.valueLength);
    case ValueHolder::Written:
        break;
    }
    return m_data.changes.values[leaf.valueBegin].text;
}

XALAN_CPP_NAMESPACE::XalanNode* Document::View(NodeRef node) const {
    return m_views.Get([this] { return std::make_unique<NodeViews>(*this, NodeOrder::Numbers); }).View(node);
}

std::string Document::Bytes() const {
    return WriteDocument(m_data);
}

ByteRange Document::StartTag(NodeRef element) const {
    const NodeRecord& record = Record(element);
    return {record.begin, record.kind == NodeKind::Element ? record.inner.startTagEnd : record.begin};
}

ByteRange Document::ValueRange(NodeRef attribute) const {
    const NodeRecord& record = Record(attribute);
    return record.kind == NodeKind::Attribute ? ByteRange{record.leaf.rawBegin, record.end - 1} : ByteRange{};
}

Place Document::PlaceAt(std::size_t offset) const {
    const std::string& text = m_data.source.text;
    return m_places.Get([&] { return std::make_unique<TextPlaces>(text); }).At(text, offset);
}

} // namespace Framework
