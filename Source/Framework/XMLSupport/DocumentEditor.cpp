#include "Framework/XMLSupport/DocumentEditor.h"

#include "Framework/XMLSupport/NodeViews.h"
#include "Framework/XMLSupport/XmlWriter.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace Framework {

namespace {

std::uint32_t NumberOf(NodeRef node) {
    return static_cast<std::uint32_t>(node);
}

/// Reserves as growing would, so that many small steps stay linear.
template <typename Items> void MakeRoom(Items& items, std::size_t count) {
    if (items.capacity() < count) {
        items.reserve(count * 2);
    }
}

std::string_view Text(const DocumentData& data, const NodeRecord& record) {
    const NodeRecord::Leaf& leaf = record.leaf;
    if (leaf.holder == ValueHolder::Written) {
        return data.changes.values[leaf.valueBegin].text;
    }
    const std::string& holder = leaf.holder == ValueHolder::Pool ? data.pool : data.source.text;
    return std::string_view(holder).substr(leaf.valueBegin, leaf.valueLength);
}

} // namespace

DocumentEditor::DocumentEditor(Document& document)
    : m_document(document), m_data(document.m_data), m_changes(document.m_data.changes) {
    if (!m_changes.any) {
        DecodedText& source = m_data.source;
        if (source.encoding != "UTF-8") {
            // UTF-7 may write in plain letters what this system writes otherwise.
            const std::string& bytes = source.original.empty() ? source.text : source.original;
            if (EncodeDocument(source.text, source.encoding, source.byteOrderMark) != bytes) {
                throw WriteError("cannot change " + m_data.sourceName + ": the encoding " + source.encoding +
                                 " does not give the bytes of the document back");
            }
            std::string().swap(source.original);
        }
        m_changes.parsedNodes = static_cast<Number>(m_data.nodes.size());
        m_changes.any = true;
    }
    // A copy of a document comes without what the vectors had in reserve.
    MakeRoom(m_changes.freeNodes, m_data.nodes.size() - m_changes.parsedNodes);
    MakeRoom(m_changes.freeValues, m_changes.values.size());
    if (NodeViews* const views = m_document.m_views.IfMade()) {
        views->TreeChanged();
    }
}

// --- texts

DocumentEditor::Region DocumentEditor::TextRegion(Number element, TextForm form) const {
    Region region;
    if (const Number only = OnlyText(element); only != 0) {
        region.first = only;
        region.hasSection = Record(only).kind == NodeKind::CData;
        return region;
    }
    std::vector<Number> texts;
    std::size_t firstSection = 0;
    std::size_t behindSections = 0;
    for (Number child = Record(element).inner.firstChild; child != 0; child = Record(child).next) {
        if (!Record(child).IsText()) {
            continue;
        }
        texts.push_back(child);
        if (Record(child).kind == NodeKind::CData) {
            firstSection = behindSections == 0 ? texts.size() - 1 : firstSection;
            behindSections = texts.size();
        }
    }
    region.hasSection = behindSections != 0;
    if (form == TextForm::CData && region.hasSection) {
        texts.resize(behindSections);
        texts.erase(texts.begin(), texts.begin() + static_cast<std::ptrdiff_t>(firstSection));
    }
    if (!texts.empty()) {
        region.first = texts.front();
        region.others.assign(texts.begin() + 1, texts.end());
    }
    return region;
}

/// The one text of an element, as nearly all that are changed have; 0 when there is none or several.
DocumentEditor::Number DocumentEditor::OnlyText(Number element) const {
    Number found = 0;
    for (Number child = Record(element).inner.firstChild; child != 0; child = Record(child).next) {
        if (Record(child).IsText()) {
            if (found != 0) {
                return 0;
            }
            found = child;
        }
    }
    return found;
}

void DocumentEditor::Touch(Number element) {
    std::vector<Number>& touched = m_changes.touched;
    if (touched.size() == touched.capacity()) {
        SortEachOnce(touched);
        touched.reserve(std::max<std::size_t>(64, touched.size() * 2));
    }
    touched.push_back(element);
}

void DocumentEditor::RememberTexts(Number element, Number first) {
    if (element >= m_changes.parsedNodes) {
        return;
    }
    Touch(element);
    const bool needsNote = first == 0 || first != OnlyParsedText(element);
    if (needsNote && !m_changes.texts.contains(element)) {
        m_changes.texts.emplace(element, StandingTexts(element));
    }
}

void DocumentEditor::SetText(NodeRef node, std::string_view text, TextForm form) {
    const Number element = NumberOf(node);
    const Region region = TextRegion(element, form);
    const NodeKind kind = region.hasSection || form == TextForm::CData ? NodeKind::CData : NodeKind::Text;
    RememberTexts(element, region.first);
    if (region.first == 0) {
        const Number next = Record(element).inner.firstChild;
        m_data.LinkBefore(NewText(text, kind, element, PlaceBefore(element, next)), next);
        return;
    }
    for (const Number other : region.others) {
        Keep(other);
    }
    Write(region.first, text);
    Record(region.first).kind = kind;
    TakeOverBlanks(element);
    for (const Number other : region.others) {
        m_data.Unlink(other);
        if (other < m_changes.parsedNodes) {
            Record(other).kind = NodeKind::None;
        } else {
            ReleaseNode(other);
        }
    }
}

/// Blanks that came with added elements count as text of the element they stand in as soon as that gets one.
void DocumentEditor::TakeOverBlanks(Number element) noexcept {
    if (m_changes.elements.empty()) {
        return;
    }
    for (Number child = Record(element).inner.firstChild; child != 0; child = Record(child).next) {
        if (const auto added = m_changes.elements.find(child); added != m_changes.elements.end()) {
            added->second = {};
        }
    }
}

/// The blanks that came with elements added below this one. Others may have come between an element and its blanks.
std::unordered_set<DocumentEditor::Number> DocumentEditor::BlanksOfAdded(Number element) const {
    std::unordered_set<Number> blanks;
    if (m_changes.elements.empty()) {
        return blanks;
    }
    for (Number child = Record(element).inner.firstChild; child != 0; child = Record(child).next) {
        if (const auto added = m_changes.elements.find(child); added != m_changes.elements.end()) {
            blanks.insert({added->second.before, added->second.after});
        }
    }
    return blanks;
}

/// The texts of an element as they were parsed, in order.
std::vector<DocumentEditor::Number> DocumentEditor::ParsedTexts(Number element) const {
    const auto change = m_changes.texts.find(element);
    return change != m_changes.texts.end() ? change->second : StandingTexts(element);
}

/// Those of the parsed texts of an element that stand in it now.
std::vector<DocumentEditor::Number> DocumentEditor::StandingTexts(Number element) const {
    std::vector<Number> texts;
    for (Number child = Record(element).inner.firstChild; child != 0; child = Record(child).next) {
        if (Record(child).IsText() && child < m_changes.parsedNodes) {
            texts.push_back(child);
        }
    }
    return texts;
}

/// The one text of an element that has no other and had no other when it was parsed; else 0.
DocumentEditor::Number DocumentEditor::OnlyParsedText(Number element) const {
    const Number only = m_changes.texts.contains(element) ? 0 : OnlyText(element);
    return only < m_changes.parsedNodes ? only : 0;
}

const NodeRecord& DocumentEditor::ParsedRecord(Number number) const {
    const NodeRecord& record = Record(number);
    return record.leaf.holder == ValueHolder::Written ? m_changes.values[record.leaf.valueBegin].parsed : record;
}

void DocumentEditor::RestoreText(Number element) {
    if (const Number only = OnlyParsedText(element); only != 0) {
        RestoreLeaf(only);
        return;
    }
    const std::vector<Number> parsed = ParsedTexts(element);
    const std::unordered_set<Number> blanks = BlanksOfAdded(element);
    for (Number child = Record(element).inner.firstChild; child != 0;) {
        const Number next = Record(child).next;
        if (child >= m_changes.parsedNodes && Record(child).IsText() && !blanks.contains(child)) {
            m_data.Unlink(child);
            ReleaseNode(child);
        }
        child = next;
    }
    // Parsed nodes are in the order of the text; what was added at the same place stands before them.
    Number next = Record(element).inner.firstChild;
    for (const Number number : parsed) {
        const bool wasUnlinked = Record(number).kind == NodeKind::None;
        RestoreLeaf(number);
        if (wasUnlinked) {
            while (next != 0 && Record(next).begin <= Record(number).begin) {
                next = Record(next).next;
            }
            m_data.LinkBefore(number, next);
        }
    }
    m_changes.texts.erase(element);
}

void DocumentEditor::RestoreLeaf(Number number) noexcept {
    NodeRecord& record = Record(number);
    if (record.leaf.holder == ValueHolder::Written) {
        const NodeRecord parsed = m_changes.values[record.leaf.valueBegin].parsed;
        ReleaseValue(record);
        record.kind = parsed.kind;
        record.leaf = parsed.leaf;
    }
}

// --- attributes

void DocumentEditor::SetValue(NodeRef node, std::string_view value) {
    const Number attribute = NumberOf(node);
    if (attribute < m_changes.parsedNodes) {
        Touch(Record(attribute).parent);
    }
    Write(attribute, value);
}

void DocumentEditor::AddAttribute(NodeRef node, std::string_view name, std::string_view value) {
    const Number element = NumberOf(node);
    const Number number = m_data.names.Intern(name) & NodeRecord::kNameMask;
    if (element < m_changes.parsedNodes) {
        Touch(element);
    }
    const Number added = NewText(value, NodeKind::Attribute, element, Record(element).begin);
    Record(added).name = number & NodeRecord::kNameMask;
    m_data.Append(added);
}

// --- elements

void DocumentEditor::AddElement(const ElementPlace& place, std::string_view name, std::string_view text,
                                TextForm form) {
    const Number parent = NumberOf(place.parent);
    const Number next = NumberOf(place.next);
    const Number begin = PlaceBefore(parent, next);
    const Number named = m_data.names.Intern(name) & NodeRecord::kNameMask;
    if (parent < m_changes.parsedNodes) {
        Touch(parent);
    }
    const Number element = NewNode(NodeKind::Element, parent, begin);
    DocumentChanges::AddedElement& added = m_changes.elements[element];
    added = {};
    Record(element).name = named & NodeRecord::kNameMask;
    if (!text.empty()) {
        const NodeKind kind = form == TextForm::CData ? NodeKind::CData : NodeKind::Text;
        m_data.LinkBefore(NewText(text, kind, element, begin), 0);
    }
    if (!place.blanksBefore.empty()) {
        added.before = NewText(place.blanksBefore, NodeKind::Text, parent, begin);
    }
    if (!place.blanksAfter.empty()) {
        added.after = NewText(place.blanksAfter, NodeKind::Text, parent, begin);
    }
    for (const Number number : {added.before, element, added.after}) {
        if (number != 0) {
            m_data.LinkBefore(number, next);
        }
    }
}

// --- what was before

std::optional<std::string_view> DocumentEditor::Parsed(NodeRef node, TextForm form, std::string& room) const {
    const Number number = NumberOf(node);
    if (number >= m_changes.parsedNodes) {
        return std::nullopt;
    }
    if (Record(number).kind == NodeKind::Attribute) {
        return Text(m_data, ParsedRecord(number));
    }
    if (const Number only = OnlyParsedText(number); only != 0) {
        return Text(m_data, ParsedRecord(only));
    }
    const std::vector<Number> parsed = ParsedTexts(number);
    auto begin = parsed.begin();
    auto end = parsed.end();
    if (form == TextForm::CData) {
        const auto isSection = [this](Number each) { return ParsedRecord(each).kind == NodeKind::CData; };
        const auto first = std::find_if(begin, end, isSection);
        if (first != end) {
            begin = first;
            end = std::find_if(parsed.rbegin(), parsed.rend(), isSection).base();
        }
    }
    room.clear();
    std::for_each(begin, end, [&](Number each) { room.append(Text(m_data, ParsedRecord(each))); });
    return room;
}

void DocumentEditor::Restore(NodeRef node) {
    const Number number = NumberOf(node);
    if (Record(number).kind == NodeKind::Attribute) {
        RestoreLeaf(number);
    } else {
        RestoreText(number);
    }
}

bool DocumentEditor::IsAdded(NodeRef node) const {
    return NumberOf(node) >= m_changes.parsedNodes;
}

void DocumentEditor::Remove(NodeRef node) {
    const Number number = NumberOf(node);
    const auto found = m_changes.elements.find(number);
    const DocumentChanges::AddedElement blanks =
        found == m_changes.elements.end() ? DocumentChanges::AddedElement() : found->second;
    for (const Number each : {blanks.before, number, blanks.after}) {
        if (each != 0) {
            m_data.Unlink(each);
            ReleaseNode(each);
        }
    }
    if (found != m_changes.elements.end()) {
        m_changes.elements.erase(found);
    }
}

// --- records

DocumentEditor::Number DocumentEditor::NewNode(NodeKind kind, Number parent, Number begin) {
    Number number = 0;
    if (!m_changes.freeNodes.empty()) {
        number = m_changes.freeNodes.back();
        m_changes.freeNodes.pop_back();
    } else {
        if (m_data.nodes.size() >= std::numeric_limits<Number>::max()) {
            throw WriteError("cannot change " + m_data.sourceName + ": the document has too many nodes");
        }
        number = static_cast<Number>(m_data.nodes.size());
        MakeRoom(m_changes.freeNodes, m_data.nodes.size() + 1 - m_changes.parsedNodes); // so that releasing cannot fail
        m_data.nodes.emplace_back();
    }
    NodeRecord& record = Record(number);
    record = NodeRecord();
    record.kind = kind;
    record.parent = parent;
    record.begin = begin;
    record.end = begin;
    if (!record.IsInner()) {
        record.leaf = {};
    }
    return number;
}

DocumentEditor::Number DocumentEditor::NewText(std::string_view text, NodeKind kind, Number parent, Number begin) {
    const Number value = NewValue(text, NodeRecord());
    const Number number = NewNode(kind, parent, begin);
    NodeRecord::Leaf& leaf = Record(number).leaf;
    leaf.holder = ValueHolder::Written;
    leaf.valueBegin = value;
    return number;
}

DocumentEditor::Number DocumentEditor::NewValue(std::string_view text, const NodeRecord& parsed) {
    if (!m_changes.freeValues.empty()) {
        const Number value = m_changes.freeValues.back();
        m_changes.values[value].text.assign(text);
        m_changes.values[value].parsed = parsed;
        m_changes.freeValues.pop_back();
        return value;
    }
    MakeRoom(m_changes.freeValues, m_changes.values.size() + 1); // so that releasing cannot fail
    m_changes.values.push_back({std::string(text), parsed});
    return static_cast<Number>(m_changes.values.size() - 1);
}

/// Moves the node's value to where values can change, with what it was.
void DocumentEditor::Keep(Number number) {
    if (Record(number).leaf.holder != ValueHolder::Written) {
        Write(number, Text(m_data, Record(number)));
    }
}

void DocumentEditor::Write(Number number, std::string_view text) {
    NodeRecord& record = Record(number);
    if (record.leaf.holder == ValueHolder::Written) {
        m_changes.values[record.leaf.valueBegin].text.assign(text);
        return;
    }
    const Number value = NewValue(text, record);
    record.leaf.valueBegin = value;
    record.leaf.holder = ValueHolder::Written;
}

void DocumentEditor::ReleaseValue(NodeRecord& record) noexcept {
    constexpr std::size_t mostKept = 256; // one of that size mostly gives its room to another soon
    if (record.leaf.holder == ValueHolder::Written) {
        std::string& text = m_changes.values[record.leaf.valueBegin].text;
        if (text.capacity() > mostKept) {
            std::string().swap(text);
        }
        m_changes.freeValues.push_back(record.leaf.valueBegin);
        record.leaf = {};
    }
}

void DocumentEditor::ReleaseNode(Number number) noexcept {
    NodeRecord& record = Record(number);
    if (record.IsInner()) {
        for (const Number first : {record.inner.firstAttribute, record.inner.firstChild}) {
            for (Number each = first; each != 0;) {
                const Number next = Record(each).next;
                ReleaseNode(each); // what was added is two levels deep at most
                each = next;
            }
        }
    } else {
        ReleaseValue(record);
    }
    record.kind = NodeKind::None;
    m_changes.freeNodes.push_back(number);
}

/// The place in the source at which something comes in.
DocumentEditor::Number DocumentEditor::PlaceBefore(Number parent, Number next) const {
    const Number before = next == 0 ? m_data.LastFrom(Record(parent).inner.firstChild) : m_data.Previous(next);
    return before == 0 ? m_data.StartTagEnd(parent) : Record(before).end;
}

} // namespace Framework
