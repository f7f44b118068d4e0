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

std::string StepOf(const XmlTree& tree, NodeRef element) {
    const std::string_view name = tree.Name(element);
    const auto isNamesake = [&](NodeRef node) {
        return tree.Kind(node) == NodeKind::Element && tree.Name(node) == name;
    };
    std::size_t before = 0;
    for (NodeRef node = tree.PreviousSibling(element); node != NodeRef::None; node = tree.PreviousSibling(node)) {
        before += isNamesake(node) ? 1 : 0;
    }
    bool alone = before == 0;
    for (NodeRef node = tree.NextSibling(element); alone && node != NodeRef::None; node = tree.NextSibling(node)) {
        alone = !isNamesake(node);
    }
    return Printable(name) + (alone ? "" : "[" + std::to_string(before + 1) + "]");
}

} // namespace

std::string NodePath(const XmlTree& tree, NodeRef node) {
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
        path = (tooDeep ? "..." : StepOf(tree, node)) + (path.empty() ? "" : "/") + path;
        if (tooDeep) {
            break;
        }
    }
    return path.empty() ? "the document" : path;
}

} // namespace Framework
