// libxml2 with structs bound to it by hand.
#include <memory>
#include <string>

#include <libxml/parser.h>
#include <libxml/tree.h>

#include "HandBound.h"

using namespace Bench;

namespace {

const xmlChar* Xml(const char* text) {
    return reinterpret_cast<const xmlChar*>(text);
}
const char* Plain(const xmlChar* text) {
    return reinterpret_cast<const char*>(text);
}

struct Node {
    xmlNode* node;

    explicit operator bool() const { return node != nullptr; }
    Node FirstElement() const { return {xmlFirstElementChild(node)}; }
    Node NextElement() const { return {xmlNextElementSibling(node)}; }
    bool Is(Model::Name name) const { return xmlStrEqual(node->name, Xml(name.narrow)) != 0; }
    bool ReadAttribute(Model::Name name, std::string& text) const {
        for (const xmlAttr* attribute = node->properties; attribute != nullptr; attribute = attribute->next) {
            if (xmlStrEqual(attribute->name, Xml(name.narrow))) {
                ReadTexts(attribute->children, text);
                return true;
            }
        }
        return false;
    }
    void ReadText(std::string& text) const { ReadTexts(node->children, text); }

    Node Add(Model::Name name) { return {xmlNewChild(node, nullptr, Xml(name.narrow), nullptr)}; }
    void SetAttribute(Model::Name name, const std::string& text) {
        xmlNewProp(node, Xml(name.narrow), Xml(text.c_str()));
    }
    void SetText(const std::string& text) { xmlAddChild(node, xmlNewText(Xml(text.c_str()))); }

private:
    static void ReadTexts(const xmlNode* first, std::string& text) {
        for (; first != nullptr; first = first->next) {
            if (first->type == XML_TEXT_NODE || first->type == XML_CDATA_SECTION_NODE) {
                text += Plain(first->content);
            }
        }
    }
};

struct FreeDocument {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};

struct Tree {
    std::unique_ptr<xmlDoc, FreeDocument> document;

    Node Root() const { return {xmlDocGetRootElement(document.get())}; }
    std::string Text() const {
        xmlChar* text = nullptr;
        int size = 0;
        xmlDocDumpFormatMemoryEnc(document.get(), &text, &size, "UTF-8", 1);
        std::string result(Plain(text), static_cast<std::size_t>(size));
        xmlFree(text);
        return result;
    }
};

struct Libxml2 {
    Tree Parse(const std::string& text) {
        const int options = XML_PARSE_HUGE | XML_PARSE_NONET;
        Tree tree{decltype(Tree::document)(
            xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, options))};
        Require(tree.document != nullptr, "libxml2 cannot parse");
        return tree;
    }
    Tree Make(Model::Name root) {
        Tree tree{decltype(Tree::document)(xmlNewDoc(Xml("1.0")))};
        xmlDocSetRootElement(tree.document.get(), xmlNewNode(nullptr, Xml(root.narrow)));
        return tree;
    }
};

} // namespace

void Bench::OfferLibxml2(Works& works) {
    Peer<HandBound<Libxml2>>::Offer(works, "libxml2, bound by hand");
}
