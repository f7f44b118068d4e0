#include "Framework/XMLSupport/Document.h"

#include "Framework/XMLSupport/DocumentParser.h"
#include "Framework/XMLSupport/DocumentWriter.h"
#include "Framework/XMLSupport/NodeViews.h"

#include <utility>

namespace Framework {

std::shared_ptr<const Document> Document::Parse(std::string bytes, std::string sourceName, const LoadLimits& limits) {
    return std::shared_ptr<const Document>(new Document(std::move(bytes), std::move(sourceName), limits));
}

Document::Document(std::string bytes, std::string sourceName, const LoadLimits& limits)
    : m_data(ParseDocument(std::move(bytes), std::move(sourceName), limits)) {}

Document::Document(const DocumentData& data) : m_data(data) {}

Document::~Document() = default;

std::shared_ptr<Document> Document::Copy() const {
    return std::shared_ptr<Document>(new Document(m_data));
}

std::string_view Document::ValueElsewhere(const NodeRecord::Leaf& leaf) const {
    return leaf.holder == ValueHolder::Pool ? std::string_view(m_data.pool).substr(leaf.valueBegin, leaf.valueLength)
                                            : std::string_view(m_data.changes.values[leaf.valueBegin].text);
}

XALAN_CPP_NAMESPACE::XalanNode* Document::View(NodeRef node) const {
    return m_views.Get([this] { return std::make_unique<NodeViews>(*this, NodeOrder::Numbers); }).View(node);
}

std::string Document::Bytes() const {
    return WriteDocument(m_data);
}

ByteRange Document::StartTag(NodeRef element) const {
    return {Record(element).begin, m_data.StartTagEnd(static_cast<std::uint32_t>(element))};
}

ByteRange Document::ValueRange(NodeRef attribute) const {
    const NodeRecord& record = Record(attribute);
    const bool isParsed = record.end > record.begin;
    return record.kind == NodeKind::Attribute && isParsed ? ByteRange{m_data.RawBegin(record), record.end - 1}
                                                          : ByteRange{};
}

Place Document::PlaceAt(std::size_t offset) const {
    const std::string& text = m_data.source.text;
    return m_places.Get([&] { return std::make_unique<TextPlaces>(text); }).At(text, offset);
}

} // namespace Framework
