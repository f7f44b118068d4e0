#include "Framework/SupportFunc.h"
#include "Framework/XMLDataWrapper.h"

#include "Framework/XMLSupport/FaultPoint.h"
#include "Framework/XMLSupport/NodeViews.h"
#include "Framework/XMLSupport/PathLookup.h"
#include "Framework/XMLSupport/TreeReading.h"
#include "Framework/XMLSupport/WrapperState.h"

using namespace Framework;

namespace {

XalanNode* Select(WrapperState& state, NodeRef node) {
    if (node == NodeRef::None) {
        return nullptr;
    }
    state.current = node;
    return state.Tree()->View(node);
}

} // namespace

bool XMLDataWrapper::NodeExists(const zelString& sName, bool bFromDocument) {
    FaultPoint("NodeExists");
    return m_pState->FindOrNone(sName, bFromDocument) != NodeRef::None;
}

XalanNode* XMLDataWrapper::SelectNode(const zelString& sName, bool bFromDocument) {
    FaultPoint("SelectNode");
    return Select(*m_pState, m_pState->FindOrNone(sName, bFromDocument));
}

bool XMLDataWrapper::LoadNodeList(const zelString& sName, const zelString& sQuery, int) {
    FaultPoint("LoadNodeList");
    std::vector<NodeRef> list;
    if (m_pState->IsLoaded()) {
        const XmlTree& tree = *m_pState->Tree();
        for (NodeRef child = tree.FirstChild(m_pState->Here()); child != NodeRef::None;
             child = tree.NextSibling(child)) {
            if (tree.Kind(child) == NodeKind::Element && tree.Name(child) == std::string_view(sName)) {
                list.push_back(child);
            }
        }
    }
    const bool isAny = !list.empty();
    m_pState->lists[sQuery] = std::move(list);
    return isAny;
}

int XMLDataWrapper::GetNodeListLength(const zelString& sQuery) const {
    FaultPoint("GetNodeListLength");
    const auto found = m_pState->lists.find(sQuery);
    return found == m_pState->lists.end() ? 0 : static_cast<int>(found->second.size());
}

XalanNode* XMLDataWrapper::SelectNodeListItem(int iPosition, const zelString& sQuery) {
    FaultPoint("SelectNodeListItem");
    const auto found = m_pState->lists.find(sQuery);
    if (found == m_pState->lists.end() || iPosition < 0 ||
        static_cast<std::size_t>(iPosition) >= found->second.size()) {
        return nullptr;
    }
    return Select(*m_pState, found->second[static_cast<std::size_t>(iPosition)]);
}

void XMLDataWrapper::ReleaseNodeList(const zelString& sQuery) {
    FaultPoint("ReleaseNodeList");
    m_pState->lists.erase(sQuery);
}

zelString XMLDataWrapper::GetNodeText(XalanNode* pNode) {
    FaultPoint("GetNodeText");
    const XmlTree* tree = nullptr;
    const NodeRef node = NodeViews::Find(pNode, tree);
    return node == NodeRef::None ? zelString() : zelString(TextOf(*tree, node));
}

zelString XMLDataWrapper::GetNodeCData(XalanNode* pNode) {
    FaultPoint("GetNodeCData");
    const XmlTree* tree = nullptr;
    const NodeRef node = NodeViews::Find(pNode, tree);
    return node == NodeRef::None ? zelString() : zelString(CDataOf(*tree, node));
}

zelString XMLDataWrapper::GetNodeAttribute(XalanNode* pNode, const zelString& sName) {
    FaultPoint("GetNodeAttribute");
    const XmlTree* tree = nullptr;
    const NodeRef node = NodeViews::Find(pNode, tree);
    return node == NodeRef::None ? zelString() : zelString(AttributeOf(*tree, node, sName));
}

zelString XMLDataWrapper::GetStringValue(const zelString& sName, bool bFromDocument) {
    FaultPoint("GetStringValue");
    const NodeRef node = m_pState->FindOrNone(sName, bFromDocument);
    return node == NodeRef::None ? zelString() : zelString(TextOf(*m_pState->Tree(), node));
}

int XMLDataWrapper::GetIntValue(const zelString& sName, bool bFromDocument) {
    return SupportFunc::GetIntValue(GetStringValue(sName, bFromDocument));
}

bool XMLDataWrapper::GetBoolValue(const zelString& sName, bool bFromDocument) {
    return SupportFunc::GetBoolValue(GetStringValue(sName, bFromDocument));
}

double XMLDataWrapper::GetDoubleValue(const zelString& sName, bool bFromDocument) {
    return SupportFunc::GetDoubleValue(GetStringValue(sName, bFromDocument));
}

zelString XMLDataWrapper::zelStringFromXalanDOMChar(const XalanDOMChar* sText) {
    return zelString(sText);
}

zelString XMLDataWrapper::zelStringFromXMLCh(const XMLCh* sText) {
    return zelString(sText);
}
