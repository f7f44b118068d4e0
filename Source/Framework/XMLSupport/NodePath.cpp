#include "Framework/XMLSupport/NodePath.h"

#include "Framework/XMLSupport/Utf.h"

#include <algorithm>

namespace Framework {

namespace {

constexpr int kMostSteps = 24;
constexpr std::size_t kLongestName = 80;

std::string Printable(std::string_view name) {
    std::string text(name.substr(0, kLongestName));
    const bool wellFormed = IsXmlText(text);
    std::replace_if(
        text.begin(), text.end(),
        [&](char c) {
            const auto byte = static_cast<unsigned char>(c);
            return byte < 0x20 || byte == 0x7F || (byte > 0x7F && !wellFormed);
        },
        '?');
    return text;
}

std::size_t NamesakesBefore(const XmlTree& tree, NodeRef element, CountedPositions* counted) {
    const std::string_view name = tree.Name(element);
    CountedPositions::Counted last{NodeRef::None, 0};
    if (counted != nullptr) {
        last = counted->byParent.try_emplace(tree.Parent(element), last).first->second;
    }
    const bool canStop = last.element != NodeRef::None && tree.Name(last.element) == name;
    std::size_t before = 0;
    for (NodeRef node = element; node != NodeRef::None; node = tree.PreviousSibling(node)) {
        if (canStop && node == last.element) {
            before += last.before + (node == element ? 0 : 1);
            break;
        }
        before += node != element && tree.Kind(node) == NodeKind::Element && tree.Name(node) == name ? 1 : 0;
    }
    if (counted != nullptr) {
        counted->byParent[tree.Parent(element)] = {element, before};
    }
    return before;
}

std::string StepOf(const XmlTree& tree, NodeRef element, CountedPositions* counted) {
    const std::string_view name = tree.Name(element);
    const auto isNamesake = [&](NodeRef node) {
        return tree.Kind(node) == NodeKind::Element && tree.Name(node) == name;
    };
    const std::size_t before = NamesakesBefore(tree, element, counted);
    bool alone = before == 0;
    for (NodeRef node = tree.NextSibling(element); alone && node != NodeRef::None; node = tree.NextSibling(node)) {
        alone = !isNamesake(node);
    }
    return Printable(name) + (alone ? "" : "[" + std::to_string(before + 1) + "]");
}

} // namespace

std::string NodePath(const XmlTree& tree, NodeRef node, CountedPositions* counted) {
    std::string path;
    if (tree.Kind(node) == NodeKind::Attribute) {
        path = "@" + Printable(tree.Name(node));
    }
    int steps = 0;
    for (; node != NodeRef::None; node = tree.Parent(node)) {
        if (tree.Kind(node) != NodeKind::Element) {
            continue;
        }
        const bool tooDeep = ++steps > kMostSteps;
        path = (tooDeep ? "..." : StepOf(tree, node, counted)) + (path.empty() ? "" : "/") + path;
        if (tooDeep) {
            break;
        }
    }
    return path.empty() ? "the document" : path;
}

} // namespace Framework
