// pugixml with structs bound to it by hand.
#include <cstring>
#include <string>

#include <pugixml.hpp>

#include "HandBound.h"

using namespace Bench;

namespace {

struct Node {
    pugi::xml_node node;

    explicit operator bool() const { return !node.empty(); }
    Node FirstElement() const { return Element(node.first_child()); }
    Node NextElement() const { return Element(node.next_sibling()); }
    bool Is(Model::Name name) const { return std::strcmp(node.name(), name.narrow) == 0; }
    bool ReadAttribute(Model::Name name, std::string& text) const {
        const pugi::xml_attribute attribute = node.attribute(name.narrow);
        text = attribute.value();
        return !attribute.empty();
    }
    void ReadText(std::string& text) const { text = node.child_value(); }

    Node Add(Model::Name name) { return {node.append_child(name.narrow)}; }
    void SetAttribute(Model::Name name, const std::string& text) {
        node.append_attribute(name.narrow).set_value(text.c_str());
    }
    void SetText(const std::string& text) { node.append_child(pugi::node_pcdata).set_value(text.c_str()); }

private:
    static Node Element(pugi::xml_node node) {
        while (node && node.type() != pugi::node_element) {
            node = node.next_sibling();
        }
        return {node};
    }
};

struct Target : pugi::xml_writer {
    std::string text;
    void write(const void* data, std::size_t size) override { text.append(static_cast<const char*>(data), size); }
};

struct Tree {
    std::unique_ptr<pugi::xml_document> document = std::make_unique<pugi::xml_document>();

    Node Root() const { return {document->document_element()}; }
    std::string Text() const {
        Target target;
        document->save(target, "  ");
        return std::move(target.text);
    }
};

struct Pugixml {
    Tree Parse(const std::string& text) {
        Tree tree;
        Require(static_cast<bool>(tree.document->load_buffer(text.data(), text.size())), "pugixml cannot parse");
        return tree;
    }
    Tree Make(Model::Name root) {
        Tree tree;
        tree.document->append_child(root.narrow);
        return tree;
    }
};

} // namespace

void Bench::OfferPugixml(Works& works) {
    Peer<HandBound<Pugixml>>::Offer(works, "pugixml, bound by hand");
    Peer<HandBound<Pugixml>>::OfferLookUp(works, "structs with hash maps");
}
