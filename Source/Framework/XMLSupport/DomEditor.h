#pragma once

#include "Framework/XMLSupport/DomTree.h"
#include "Framework/XMLSupport/TreeEditor.h"

namespace Framework {

/// Changes a Xerces DOM, which remembers nothing of what it was. What XML cannot hold throws std::invalid_argument.
class DomEditor final : public TreeEditor {
public:
    explicit DomEditor(xercesc::DOMDocument& document) : m_document(document) {}

    void SetText(NodeRef element, std::string_view text, TextForm form) override;
    void SetValue(NodeRef attribute, std::string_view value) override;
    void AddAttribute(NodeRef element, std::string_view name, std::string_view value) override;
    void AddElement(const ElementPlace& place, std::string_view name, std::string_view text, TextForm form) override;

private:
    xercesc::DOMNode* NewText(std::string_view text, bool asSection);

    xercesc::DOMDocument& m_document;
};

} // namespace Framework
