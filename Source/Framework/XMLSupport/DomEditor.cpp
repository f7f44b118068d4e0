#include "Framework/XMLSupport/DomEditor.h"

#include "Framework/XMLSupport/DomNodes.h"
#include "Framework/XMLSupport/Utf.h"

#include <vector>

#include <xercesc/dom/DOM.hpp>

namespace Framework {

using xercesc::DOMNode;

namespace {

bool IsSection(const DOMNode* node) {
    return node->getNodeType() == DOMNode::CDATA_SECTION_NODE;
}

/// The direct texts that make up the value.
std::vector<DOMNode*> TextsOf(DOMNode* element, TextForm form) {
    std::vector<DOMNode*> texts;
    std::size_t firstSection = 0;
    std::size_t behindSections = 0;
    for (DOMNode* child = element->getFirstChild(); child != nullptr; child = child->getNextSibling()) {
        if (child->getNodeType() != DOMNode::TEXT_NODE && !IsSection(child)) {
            continue;
        }
        texts.push_back(child);
        if (IsSection(child)) {
            firstSection = behindSections == 0 ? texts.size() - 1 : firstSection;
            behindSections = texts.size();
        }
    }
    if (form == TextForm::CData && behindSections != 0) {
        texts.resize(behindSections);
        texts.erase(texts.begin(), texts.begin() + static_cast<std::ptrdiff_t>(firstSection));
    }
    return texts;
}

} // namespace

DOMNode* DomEditor::NewText(std::string_view text, bool asSection) {
    const std::u16string units = ToUtf16(text);
    return asSection ? static_cast<DOMNode*>(m_document.createCDATASection(units.c_str()))
                     : m_document.createTextNode(units.c_str());
}

void DomEditor::SetText(NodeRef element, std::string_view text, TextForm form) {
    DOMNode* const parent = DomTree::Node(element);
    const std::vector<DOMNode*> texts = TextsOf(parent, form);
    bool asSection = form == TextForm::CData;
    for (const DOMNode* each : texts) {
        asSection = asSection || IsSection(each);
    }
    DOMNode* const first = texts.empty() ? nullptr : texts.front();
    if (first != nullptr && IsSection(first) == asSection) {
        SetTextValue(*first, ToUtf16(text));
    } else if (!text.empty() || asSection) {
        parent->insertBefore(NewText(text, asSection), first != nullptr ? first : parent->getFirstChild());
    }
    for (DOMNode* each : texts) {
        if (each != first || IsSection(first) != asSection) {
            parent->removeChild(each); // and kept by the document: somebody may still look at it
        }
    }
}

void DomEditor::SetValue(NodeRef attribute, std::string_view value) {
    SetAttributeText(*DomTree::Node(attribute), m_document, ToUtf16(value));
}

void DomEditor::AddAttribute(NodeRef element, std::string_view name, std::string_view value) {
    SetAttribute(*DomTree::Node(element), m_document, name, value);
}

void DomEditor::AddElement(const ElementPlace& place, std::string_view name, std::string_view text, TextForm form) {
    DOMNode* const element = NewElement(m_document, name);
    if (!text.empty()) {
        element->appendChild(NewText(text, form == TextForm::CData));
    }
    DOMNode* const before = place.blanksBefore.empty() ? nullptr : NewText(place.blanksBefore, false);
    DOMNode* const after = place.blanksAfter.empty() ? nullptr : NewText(place.blanksAfter, false);
    for (DOMNode* const each : {before, element, after}) {
        if (each != nullptr) { // all are made by now
            DomTree::Node(place.parent)->insertBefore(each, DomTree::Node(place.next));
        }
    }
}

} // namespace Framework
