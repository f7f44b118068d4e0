#include "Framework/ContainerBase/DumpNodes.h"
#include "Framework/XMLSupport/DomNodes.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/XmlMemory.h"

#include <stdexcept>

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMException.hpp>

using namespace Framework;

namespace {

/// Appends by `step`; a text or name that is no XML is the object's error, with its container named.
template <typename Step> bool Append(TypedDataContainer& object, const char* where, Step step) {
    FaultPoint(where);
    try {
        WithBadAlloc(step);
        return true;
    } catch (const std::invalid_argument& failure) {
        object.SetLastError(-1, "%s: %s", object.GetContainerName().c_str(), failure.what());
    } catch (const xercesc::DOMException&) { // a host may have made the node read only
        object.SetLastError(-1, "%s: the DOM refuses the node", object.GetContainerName().c_str());
    }
    return false;
}

} // namespace

bool TypedDataContainer::AppendCDataValue(FullFunctionXMLDataWrapper* pOutput, DOMNode* pParent, const zelString& sName,
                                          zelString sValue) {
    return CreateCDataNode(pParent, pOutput->GetOutputDocument(), sName, std::move(sValue));
}

bool Framework::AddTextNode(TypedDataContainer& object, DOMNode& parent, DOMDocument& document, std::string_view name,
                            std::string_view text) {
    return Append(object, "CreateTextNode", [&] { AppendTextElement(parent, document, name, text); });
}

bool Framework::AddCDataNode(TypedDataContainer& object, DOMNode& parent, DOMDocument& document, std::string_view name,
                             std::string_view text) {
    return Append(object, "CreateCDataNode", [&] { AppendCDataElement(parent, document, name, text); });
}

bool Framework::AddTextNodeWithAttribute(TypedDataContainer& object, DOMNode& parent, DOMDocument& document,
                                         std::string_view name, std::string_view text, std::string_view attribute,
                                         std::string_view value) {
    return Append(object, "CreateTextNodeWithAttr", [&] {
        DOMNode* const element = AppendTextElement(parent, document, name, text);
        SetNewAttribute(*element, document, attribute, value);
    });
}

bool TypedDataContainer::CreateTextNode(DOMNode* pParent, DOMDocument* pDoc, zelString sName, zelString sValue) {
    return AddTextNode(*this, *pParent, *pDoc, sName, sValue);
}

bool TypedDataContainer::CreateCDataNode(DOMNode* pParent, DOMDocument* pDoc, zelString sName, zelString sValue) {
    return AddCDataNode(*this, *pParent, *pDoc, sName, sValue);
}

bool TypedDataContainer::CreateTextNodeWithAttr(DOMNode* pParent, DOMDocument* pDoc, zelString sName, zelString sValue,
                                                zelString sAttrName, zelString sAttrValue) {
    return AddTextNodeWithAttribute(*this, *pParent, *pDoc, sName, sValue, sAttrName, sAttrValue);
}
