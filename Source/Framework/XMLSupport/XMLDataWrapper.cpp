#include "Framework/XMLDataWrapper.h"

#include "Framework/XMLSupport/AtomicFile.h"
#include "Framework/XMLSupport/Attachment.h"
#include "Framework/XMLSupport/DocumentParser.h"
#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/LimitMessages.h"
#include "Framework/XMLSupport/LoadsAgain.h"
#include "Framework/XMLSupport/NodeViews.h"
#include "Framework/XMLSupport/WrapperGuard.h"
#include "Framework/XMLSupport/XmlWriter.h"

using namespace Framework;

namespace {

/// What parsing says of a document that is too large, for a file that is refused before all of it is read.
std::string TooLarge(const LoadLimits& limits) {
    return ":1:1: " + LimitPassed("the document has more than " + std::to_string(limits.bytes) + " bytes",
                                  std::to_string(limits.bytes), "bytes");
}

} // namespace

XMLDataWrapper::XMLDataWrapper() : m_pState(std::make_unique<WrapperState>()) {}

XMLDataWrapper::~XMLDataWrapper() {
    if (m_pState != nullptr) {
        if (const std::shared_ptr<Attachment> attachment = m_pState->attachment.lock()) {
            attachment->TakeOver(std::move(m_pState));
        }
    }
}

bool XMLDataWrapper::LoadXMLFile(const char* sPath, bool bReadOnly) {
    return Guarded(*m_pState, [&] {
        FaultPoint("LoadXMLFile");
        const std::string path = sPath == nullptr ? "" : sPath;
        const LoadLimits limits = LoadLimits::Current();
        const auto files = std::make_shared<KnownFiles>();
        std::string bytes = ReadFile(path, limits.bytes, TooLarge(limits), &files->loaded);
        m_pState->Load(Document::Parse(std::move(bytes), path, limits), bReadOnly, files);
    });
}

bool XMLDataWrapper::LoadXMLText(const zelString& sXML, bool bReadOnly) {
    return Guarded(*m_pState, [&] {
        FaultPoint("LoadXMLText");
        const std::string name = "<text>";
        const LoadLimits limits = LoadLimits::Current();
        CheckDocumentSize(sXML.size(), name, limits); // before it is copied
        m_pState->Load(Document::Parse(std::string(sXML), name, limits), bReadOnly);
    });
}

zelString XMLDataWrapper::GetXMLText() {
    zelString text;
    Guarded(*m_pState, [&] {
        FaultPoint("GetXMLText");
        if (!m_pState->IsLoaded()) {
            throw std::runtime_error("no document is loaded");
        }
        if (m_pState->domIsMaster) {
            const DomTree& tree = *m_pState->dom->tree;
            std::string written =
                WriteXml(tree, tree.DocumentNode(), {.declaration = true, .indent = m_pState->isOutput});
            CheckTagsLoadAgain(written, "the document");
            CheckSizeLoadsAgain(written.size(), "the document");
            text = std::move(written);
        } else {
            text = m_pState->document->Bytes();
        }
    });
    return text;
}

bool XMLDataWrapper::SaveXMLFile(const char* sPath) {
    return SaveXMLFile(sPath, false);
}

bool XMLDataWrapper::SaveXMLFile(const char* sPath, bool bRefuseChanged) {
    const zelString text = GetXMLText();
    return !text.empty() && Guarded(*m_pState, [&] {
        FaultPoint("SaveXMLFile");
        // A copy, for others may go on with what this wrapper knew; kept whatever happens, for a file may be in place
        // and saving fail all the same.
        const std::shared_ptr<const KnownFiles> before = m_pState->Files();
        const auto known = before == nullptr ? std::make_shared<KnownFiles>() : std::make_shared<KnownFiles>(*before);
        try {
            SaveAtomically(sPath == nullptr ? "" : sPath, text, bRefuseChanged ? Overwrite::OnlyKnown : Overwrite::Any,
                           *known);
        } catch (...) {
            m_pState->SetFiles(known);
            throw;
        }
        m_pState->SetFiles(known);
    });
}

bool XMLDataWrapper::IsDataLoaded() const {
    FaultPoint("IsDataLoaded");
    return m_pState->IsLoaded();
}

bool XMLDataWrapper::HasCurrentNode() const {
    FaultPoint("HasCurrentNode");
    return m_pState->current != NodeRef::None;
}

zelString XMLDataWrapper::GetStoredQuery() const {
    FaultPoint("GetStoredQuery");
    return m_pState->query.Text();
}

void XMLDataWrapper::SetStoredQuery(const zelString& sQuery) {
    FaultPoint("SetStoredQuery");
    m_pState->query = QueryChain(sQuery);
}

DOMNode* XMLDataWrapper::GetDOMNode(bool bRoot, bool) {
    FaultPoint("GetDOMNode");
    if (!m_pState->IsLoaded()) {
        return nullptr;
    }
    return m_pState->DomNodeOrNull(bRoot ? m_pState->Tree()->Root() : m_pState->Here());
}

DOMNode* XMLDataWrapper::GetDOMNode(const zelString& sQuery, bool bFromDocument) {
    FaultPoint("GetDOMNode");
    return m_pState->DomNodeOrNull(m_pState->FindOrNone(sQuery, bFromDocument));
}

DOMNode* XMLDataWrapper::GetDOMNode(const char* sQuery, bool bFromDocument) {
    return GetDOMNode(zelString(sQuery), bFromDocument);
}

XalanNode* XMLDataWrapper::GetXalanNode(const zelString& sQuery, bool bFromDocument) {
    FaultPoint("GetXalanNode");
    const NodeRef node = m_pState->FindOrNone(sQuery, bFromDocument);
    return node == NodeRef::None ? nullptr : m_pState->Tree()->View(node);
}

void XMLDataWrapper::SetCurrentNode(DOMNode* pNode) {
    FaultPoint("SetCurrentNode");
    m_pState->current = NodeRef::None;
    if (pNode == nullptr || m_pState->dom == nullptr) {
        return;
    }
    if (!m_pState->domIsMaster) {
        const auto found = m_pState->dom->refOf.find(pNode);
        m_pState->current = found == m_pState->dom->refOf.end() ? NodeRef::None : found->second;
    } else if (m_pState->dom->tree->Holds(pNode)) {
        m_pState->current = m_pState->dom->tree->Ref(pNode);
    }
}

void XMLDataWrapper::SetCurrentNode(XalanNode* pNode) {
    FaultPoint("SetCurrentNode");
    const XmlTree* tree = nullptr;
    const NodeRef node = NodeViews::Find(pNode, tree);
    m_pState->current = NodeRef::None;
    if (node == NodeRef::None) {
        return;
    }
    if (tree == m_pState->Tree()) {
        m_pState->current = node;
    } else if (m_pState->HeldDocument(tree)) {
        m_pState->current = m_pState->Translate(node);
    }
}

void XMLDataWrapper::SetCurrentNode(std::nullptr_t) {
    FaultPoint("SetCurrentNode");
    m_pState->current = NodeRef::None;
}

zelString XMLDataWrapper::GetLastError() const {
    return m_pState->Error();
}

int XMLDataWrapper::GetLastErrorNum() const {
    return m_pState->ErrorNumber();
}
