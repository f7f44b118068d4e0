#include "Framework/XMLSupport/DocumentData.h"

namespace Framework {

namespace {

/// The place of the first of these characters from `at` on. What is looked for is there in a well-formed tag.
std::uint32_t PlaceOfAny(const std::string& text, const char* characters, std::uint32_t at) {
    return static_cast<std::uint32_t>(text.find_first_of(characters, at));
}

} // namespace

std::uint32_t DocumentData::StartTagEnd(std::uint32_t element) const {
    const NodeRecord& record = nodes[element];
    if (record.kind != NodeKind::Element || (changes.any && element >= changes.parsedNodes)) {
        return record.begin;
    }
    std::uint32_t last = LastFrom(record.inner.firstAttribute);
    while (last != 0 && changes.any && last >= changes.parsedNodes) {
        last = Previous(last);
    }
    const auto nameSize = static_cast<std::uint32_t>(names.Name(record.name).size());
    return PlaceOfAny(source.text, ">", last == 0 ? record.begin + 1 + nameSize : nodes[last].end) + 1;
}

std::uint32_t DocumentData::RawBegin(const NodeRecord& attribute) const {
    const auto nameSize = static_cast<std::uint32_t>(names.Name(attribute.name).size());
    return PlaceOfAny(source.text, "\"'", attribute.begin + nameSize) + 1;
}

void DocumentData::LinkBefore(std::uint32_t number, std::uint32_t next) {
    NodeRecord& record = nodes[number];
    NodeRecord::Inner& parent = nodes[record.parent].inner;
    std::uint32_t& first = record.kind == NodeKind::Attribute ? parent.firstAttribute : parent.firstChild;
    record.next = next;
    if (first == 0) {
        first = record.previous = number;
        return;
    }
    NodeRecord& behind = nodes[next == 0 ? first : next]; // behind the last comes the first
    record.previous = behind.previous;
    if (next == first) {
        first = number;
    } else {
        nodes[behind.previous].next = number;
    }
    behind.previous = number;
}

void DocumentData::Unlink(std::uint32_t number) {
    const NodeRecord& record = nodes[number];
    NodeRecord::Inner& parent = nodes[record.parent].inner;
    std::uint32_t& first = record.kind == NodeKind::Attribute ? parent.firstAttribute : parent.firstChild;
    if (first == number) {
        first = record.next;
    } else {
        nodes[record.previous].next = record.next;
    }
    if (first != 0) {
        nodes[record.next == 0 ? first : record.next].previous = record.previous;
    }
}

} // namespace Framework
