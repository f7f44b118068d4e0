#pragma once

#include "Framework/XMLSupport/Document.h"
#include "Framework/XMLSupport/TreeReading.h"
#include "Framework/XMLSupport/XmlTree.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace Framework::Testing {

inline std::shared_ptr<const Document> Load(std::string xml) {
    return Document::Parse(std::move(xml), "test.xml", LoadLimits::Default());
}

/// A subtree in one line, for comparing: element(name="value" ...)[children], 'text', {CDATA}, !comment!, ?target
/// data?. Attributes are sorted, since a DOM keeps them so.
inline std::string TreeText(const XmlTree& tree, NodeRef node) {
    std::string room;
    std::string text;
    switch (tree.Kind(node)) {
    case NodeKind::Text:
        return "'" + std::string(tree.Value(node, room)) + "'";
    case NodeKind::CData:
        return "{" + std::string(tree.Value(node, room)) + "}";
    case NodeKind::Comment:
        return "!" + std::string(tree.Value(node, room)) + "!";
    case NodeKind::Instruction:
        return "?" + std::string(tree.Name(node)) + " " + std::string(tree.Value(node, room)) + "?";
    default:
        break;
    }
    std::vector<std::string> attributes;
    for (NodeRef at = tree.FirstAttribute(node); at != NodeRef::None; at = tree.NextSibling(at)) {
        attributes.push_back(std::string(tree.Name(at)) + "=\"" + std::string(tree.Value(at, room)) + "\"");
    }
    std::sort(attributes.begin(), attributes.end());
    text = std::string(tree.Name(node)) + "(";
    for (const std::string& attribute : attributes) {
        text += attribute + " ";
    }
    text += ")[";
    for (NodeRef child = tree.FirstChild(node); child != NodeRef::None; child = tree.NextSibling(child)) {
        text += TreeText(tree, child);
    }
    return text + "]";
}

inline std::string TreeText(const XmlTree& tree) {
    return TreeText(tree, tree.DocumentNode());
}

/// What a reader makes of a tree, one line for each element: empty texts and the splitting of sections do not show.
inline std::vector<std::string> Reading(const XmlTree& tree) {
    std::vector<std::string> lines;
    std::string room;
    for (NodeRef node = tree.Root(); node != NodeRef::None; node = NextInOrder(tree, node, tree.Root())) {
        if (tree.Kind(node) == NodeKind::Comment) {
            lines.push_back("!" + std::string(tree.Value(node, room)));
        } else if (tree.Kind(node) == NodeKind::Element) {
            std::string& line = lines.emplace_back(tree.Name(node));
            for (NodeRef at = tree.FirstAttribute(node); at != NodeRef::None; at = tree.NextSibling(at)) {
                line += " " + std::string(tree.Name(at)) + "=" + std::string(tree.Value(at, room));
            }
            line += "|" + TextOf(tree, node) + "|" + CDataOf(tree, node);
        }
    }
    return lines;
}

} // namespace Framework::Testing
