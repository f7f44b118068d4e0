#include "Framework/XMLSupport/DocumentBuilder.h"

#include "Framework/XMLSupport/LimitMessages.h"
#include "Framework/XMLSupport/ParserMessages.h"

#include <algorithm>

namespace Framework {

namespace {

constexpr std::uint32_t kSectionOpening = 9; // <![CDATA[
constexpr std::uint32_t kSectionClosing = 3; // ]]>
constexpr std::size_t kMostNodesReservedAtFirst = 8192;
constexpr double kSurplus = 1.1; // over what the beginning tells: growing once more would cost a copy of all

} // namespace

DocumentBuilder::DocumentBuilder(DocumentData& data, const LoadLimits& limits) : m_data(data), m_limits(limits) {
    const std::size_t size = m_data.source.text.size();
    m_data.nodes.reserve(std::min(size / 16 + 16, kMostNodesReservedAtFirst));
    m_data.nodes.resize(2);
    NodeRecord& document = m_data.nodes.back();
    document.kind = NodeKind::Document;
    document.end = static_cast<std::uint32_t>(size);
}

void DocumentBuilder::StartElement(std::string_view name, const char* const* attributes, ByteRange tag) {
    FlushRun();
    if (m_depth >= m_limits.depth) {
        throw ErrorAt(m_data, tag.begin,
                      LimitPassed("elements are nested too deeply", std::to_string(m_limits.depth), "depth"));
    }
    const std::uint32_t element = AddChild(NodeKind::Element, tag);
    m_data.nodes[element].name = m_data.names.Intern(name) & NodeRecord::kNameMask;
    if (m_depth == 0) {
        m_data.root = element;
    }
    AddAttributes(element, attributes, tag.begin + 1 + static_cast<std::uint32_t>(name.size()));
    m_parent = element;
    m_lastChild = 0;
    ++m_depth;
}

void DocumentBuilder::EndElement(std::uint32_t end) {
    FlushRun();
    NodeRecord& record = m_data.nodes[m_parent];
    record.end = end;
    CloseChildren();
    m_lastChild = m_parent;
    m_parent = record.parent;
    --m_depth;
    if (m_depth == 0) {
        CloseChildren();
    }
}

/// Before the first of a list stands its last, which only now is known.
void DocumentBuilder::CloseChildren() {
    if (m_lastChild != 0) {
        m_data.nodes[m_data.nodes[m_parent].inner.firstChild].previous = m_lastChild;
    }
}

// The parser tells no ranges of attributes. The tag is well formed by now and its attributes come in the order of the
// tag, so they can be found by their quotes alone.
void DocumentBuilder::AddAttributes(std::uint32_t element, const char* const* attributes, std::uint32_t at) {
    const std::string& text = m_data.source.text;
    for (; *attributes != nullptr; attributes += 2) {
        const std::string_view name = attributes[0];
        const std::uint32_t begin = SkipBlanks(at);
        at = SkipBlanks(begin + static_cast<std::uint32_t>(name.size()));
        const std::uint32_t quote = SkipBlanks(at + 1);
        const auto rawEnd = static_cast<std::uint32_t>(text.find(text[quote], quote + 1));
        at = rawEnd + 1;
        const std::uint32_t number = Add(NodeKind::Attribute, {begin, at});
        NodeRecord& record = m_data.nodes[number];
        record.parent = element;
        record.name = m_data.names.Intern(name) & NodeRecord::kNameMask;
        SetValue(record, attributes[1], {quote + 1, rawEnd});
        m_data.Append(number);
    }
}

void DocumentBuilder::Text(std::string_view piece, ByteRange range) {
    if (m_run.kind == NodeKind::None) {
        m_run = {NodeKind::Text, range.begin, range.end, range.begin, false};
    }
    // Pieces are either a stretch of the source or what a reference or line end stands for. The latter may be as long
    // as its source only where a single CR reads as LF.
    const std::string& text = m_data.source.text;
    const bool verbatim = piece.size() == range.Size() && (piece.size() != 1 || piece.front() == text[range.begin]);
    if (!verbatim && !m_run.inPool) {
        const std::size_t poolBegin = m_data.pool.size();
        AddToPool(std::string_view(text).substr(m_run.valueBegin, range.begin - m_run.valueBegin), range.begin);
        m_run.valueBegin = static_cast<std::uint32_t>(poolBegin);
        m_run.inPool = true;
    }
    if (m_run.inPool) {
        AddToPool(piece, range.begin);
    }
    m_run.end = range.end;
}

void DocumentBuilder::StartSection(ByteRange range) {
    FlushRun();
    m_run = {NodeKind::CData, range.begin, range.end, range.begin + kSectionOpening, false};
}

void DocumentBuilder::EndSection(ByteRange range) {
    m_run.end = range.end;
    FlushRun();
}

void DocumentBuilder::FlushRun() {
    if (m_run.kind == NodeKind::None) {
        return;
    }
    const bool isSection = m_run.kind == NodeKind::CData;
    NodeRecord& record = m_data.nodes[AddChild(m_run.kind, {m_run.begin, m_run.end})];
    const std::size_t valueEnd = m_run.inPool ? m_data.pool.size() : m_run.end - (isSection ? kSectionClosing : 0);
    record.leaf.valueBegin = m_run.valueBegin;
    record.leaf.valueLength = (valueEnd - m_run.valueBegin) & NodeRecord::kLengthMask;
    record.leaf.holder = m_run.inPool ? ValueHolder::Pool : ValueHolder::Source;
    m_run.kind = NodeKind::None;
}

void DocumentBuilder::Comment(std::string_view text, ByteRange range) {
    FlushRun();
    SetValue(m_data.nodes[AddChild(NodeKind::Comment, range)], text, {range.begin + 4, range.end - 3}); // <!-- and -->
}

void DocumentBuilder::Instruction(std::string_view target, std::string_view content, ByteRange range) {
    FlushRun();
    NodeRecord& record = m_data.nodes[AddChild(NodeKind::Instruction, range)];
    record.name = m_data.names.Intern(target) & NodeRecord::kNameMask;
    SetValue(record, content,
             {SkipBlanks(range.begin + 2 + static_cast<std::uint32_t>(target.size())), range.end - 2}); // <? and ?>
}

/// A value that the parser did not get to see is what is written.
void DocumentBuilder::SetValue(NodeRecord& record, std::string_view value, ByteRange raw) {
    const std::string_view written = std::string_view(m_data.source.text).substr(raw.begin, raw.Size());
    const bool inPool = !value.empty() && value != written;
    record.leaf.holder = inPool ? ValueHolder::Pool : ValueHolder::Source;
    record.leaf.valueBegin = inPool ? static_cast<std::uint32_t>(m_data.pool.size()) : raw.begin;
    record.leaf.valueLength = (inPool ? value.size() : written.size()) & NodeRecord::kLengthMask;
    if (inPool) {
        AddToPool(value, raw.begin);
    }
}

/// Takes room by what has been read, as MakeRoom does. No text is longer than it is written, and the first ones do not
/// tell much of all.
void DocumentBuilder::AddToPool(std::string_view text, std::size_t consumed) {
    std::string& pool = m_data.pool;
    const std::size_t size = pool.size() + text.size();
    if (size > pool.capacity()) {
        const auto expected = static_cast<std::size_t>(static_cast<double>(size) * ShareOf(consumed));
        pool.reserve(std::max(std::min({expected, m_data.source.text.size(), 8 * size}), size + size / 2));
    }
    pool.append(text);
}

std::uint32_t DocumentBuilder::Add(NodeKind kind, ByteRange range) {
    const std::size_t number = m_data.nodes.size();
    if (number - 2 >= m_limits.nodes) {
        throw ErrorAt(m_data, range.begin, NodesPassed(m_limits));
    }
    if (number == m_data.nodes.capacity()) {
        MakeRoom(range.begin);
    }
    NodeRecord& record = m_data.nodes.emplace_back(); // all zeros is an empty leaf too
    record.begin = range.begin;
    record.end = range.end;
    record.kind = kind;
    return static_cast<std::uint32_t>(number);
}

std::uint32_t DocumentBuilder::AddChild(NodeKind kind, ByteRange range) {
    const std::uint32_t number = Add(kind, range);
    NodeRecord& record = m_data.nodes[number];
    record.parent = m_parent;
    record.previous = m_lastChild;
    if (m_lastChild == 0) {
        m_data.nodes[m_parent].inner.firstChild = number;
    } else {
        m_data.nodes[m_lastChild].next = number;
    }
    m_lastChild = number;
    if (m_depth == 0) { // no end tag will come
        CloseChildren();
    }
    return number;
}

// Documents are alike from end to end: what has been read tells how many nodes the rest will need, so that a large one
// is hardly ever copied. Room that stays unused is address space and no memory, but counts for the limit, so half of
// what is left is kept for the rest. Growing by half at least keeps the whole linear whatever the document does.
void DocumentBuilder::MakeRoom(std::size_t consumed) {
    const std::size_t count = m_data.nodes.size();
    const auto expected = static_cast<std::size_t>(static_cast<double>(count) * ShareOf(consumed));
    const std::size_t least = count + count / 2 + 16;
    const std::size_t used = MemoryOf(m_data);
    const std::size_t most = (m_limits.memory - std::min(used, m_limits.memory)) / sizeof(NodeRecord);
    if (least > most) {
        throw ErrorAt(m_data, consumed, MemoryPassed(m_limits));
    }
    m_data.nodes.reserve(std::clamp(expected, least, std::max(least, most / 2)));
}

/// How many times as much as now there will be at the end of the document.
double DocumentBuilder::ShareOf(std::size_t consumed) const {
    return static_cast<double>(m_data.source.text.size()) / static_cast<double>(consumed + 1) * kSurplus;
}

std::uint32_t DocumentBuilder::SkipBlanks(std::uint32_t at) const {
    const std::string& text = m_data.source.text;
    while (text[at] == ' ' || text[at] == '\t' || text[at] == '\r' || text[at] == '\n') {
        ++at;
    }
    return at;
}

} // namespace Framework
