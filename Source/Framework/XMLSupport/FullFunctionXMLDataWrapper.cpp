#include "Framework/XMLDataWrapper.h"

#include <stdexcept>

#include <xercesc/dom/DOM.hpp>

#include "Framework/XMLSupport/Attachment.h"
#include "Framework/XMLSupport/DomNodes.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/PathLookup.h"
#include "Framework/XMLSupport/PathMaker.h"
#include "Framework/XMLSupport/Utf.h"
#include "Framework/XMLSupport/WrapperGuard.h"
#include "Framework/XMLSupport/XmlMemory.h"

using namespace Framework;

FullFunctionXMLDataWrapper::FullFunctionXMLDataWrapper() = default;

FullFunctionXMLDataWrapper::~FullFunctionXMLDataWrapper() = default;

bool FullFunctionXMLDataWrapper::CreateOutputDocument(const char* sRootName) {
    return Guarded(*m_pState, [&] {
        FaultPoint("CreateOutputDocument");
        auto side = std::make_shared<DomSide>();
        side->document = NewDomDocument();
        if (sRootName != nullptr && *sRootName != '\0') {
            AppendElement(*side->document, *side->document, sRootName);
        }
        side->tree = std::make_unique<DomTree>(side->document.get());
        m_pState->Load(nullptr, false);
        m_pState->dom = std::move(side);
        m_pState->domIsMaster = true;
        m_pState->isOutput = true;
    });
}

DOMDocument* FullFunctionXMLDataWrapper::GetOutputDocument() {
    FaultPoint("GetOutputDocument");
    if (!m_pState->domIsMaster && m_pState->IsLoaded()) {
        m_pState->DomNodeOrNull(m_pState->Tree()->Root());
    }
    return m_pState->dom == nullptr ? nullptr : m_pState->dom->document.get();
}

DOMNode* FullFunctionXMLDataWrapper::FindOutputNode(const zelString& sQuery, bool bFromDocument, bool) {
    FaultPoint("FindOutputNode");
    return m_pState->DomNodeOrNull(m_pState->FindOrNone(sQuery, bFromDocument));
}

bool FullFunctionXMLDataWrapper::CreateQueryPath(const zelString& sQuery) {
    FaultPoint("CreateQueryPath");
    const DOMDocument* const document = GetOutputDocument();
    try {
        if (document == nullptr || !m_pState->domIsMaster) {
            throw std::runtime_error(m_pState->readOnly ? "the document is read only" : "there is no document");
        }
        const WrapperState::PathStart start = m_pState->StartOf(sQuery, true);
        if (start.rest.empty() && !sQuery.empty()) {
            return true; // the node that a walk stands on
        }
        const ParsedPath parsed = ReadPath(start.rest);
        if (parsed.kind != PathKind::Simple) {
            throw std::runtime_error("it is not made of names, positions and attribute values");
        }
        PathMaker(*m_pState->dom->tree, m_pState->Index()).Make(parsed.path, start.node);
        return true;
    } catch (const std::runtime_error& failure) {
        m_pState->SetError(-1, "cannot create " + sQuery + ": " + failure.what());
    } catch (const std::invalid_argument& failure) {
        m_pState->SetError(-1, "cannot create " + sQuery + ": " + failure.what());
    }
    return false;
}

bool FullFunctionXMLDataWrapper::AppendElementValue(DOMNode* pParent, const zelString& sName, const zelString& sValue,
                                                    bool) {
    FaultPoint("AppendElementValue");
    try {
        if (pParent == nullptr) {
            throw std::invalid_argument("there is no node to append " + sName + " to");
        }
        DOMDocument* const document = pParent->getNodeType() == DOMNode::DOCUMENT_NODE
                                          ? static_cast<DOMDocument*>(pParent)
                                          : pParent->getOwnerDocument();
        WithBadAlloc([&] { AppendTextElement(*pParent, *document, sName, sValue); });
        return true;
    } catch (const std::invalid_argument& failure) {
        m_pState->SetError(-1, failure.what());
    } catch (const xercesc::DOMException&) {
        m_pState->SetError(-1, sName + " cannot be appended to this node");
    }
    return false;
}

DOMNode* XMLDataWrapper::CreateNewElement(const zelString& sName, DOMDocument* pDoc) {
    FaultPoint("CreateNewElement");
    try {
        return WithBadAlloc([&] { return NewElement(*pDoc, sName); });
    } catch (const std::invalid_argument&) {
        return nullptr;
    }
}

DOMNode* XMLDataWrapper::CreateNewAttribute(const zelString& sName, DOMDocument* pDoc) {
    FaultPoint("CreateNewAttribute");
    if (!IsXmlText(sName)) {
        return nullptr;
    }
    try {
        return WithBadAlloc([&] { return pDoc->createAttribute(ToUtf16(sName).c_str()); });
    } catch (const xercesc::DOMException&) {
        return nullptr;
    }
}

bool XMLDataWrapper::SetAttributeValue(const zelString& sValue, DOMNode* pAttribute) {
    FaultPoint("SetAttributeValue");
    if (!IsXmlText(sValue)) {
        return false;
    }
    try {
        WithBadAlloc([&] { pAttribute->setNodeValue(ToUtf16(sValue).c_str()); });
        return true;
    } catch (const xercesc::DOMException&) { // a host may have made it read only
        return false;
    }
}
