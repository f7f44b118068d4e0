// Generated from CommConfig.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/CommEventTransformerListType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"
#include "FrameworkDataContainers/CommTransformerType.h"

// clang-format off
constinit const Framework::FieldRow CommEventTransformerListType::s_Rows[] = {
    Framework::PlainList<CommTransformerType, &CommEventTransformerListType::AddEventTransformer, &CommEventTransformerListType::ClearEventTransformer>("EventTransformer", "CommTransformerType", &CommEventTransformerListType::m_EventTransformerList),
};

constinit const Framework::FieldTable CommEventTransformerListType::s_Table = {
    .className = "CommEventTransformerListType",
    .elementName = "CommEventTransformerList",
    .parent = nullptr,
    .isStructuralConfigLoader = false,
    .isRoot = false,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<CommEventTransformerListType>,
    .type = &typeid(CommEventTransformerListType),
    .autoFill = Framework::ToBase(&CommEventTransformerListType::m_bAutoFillTypeInfo),
};
// clang-format on

CommEventTransformerListType::CommEventTransformerListType(bool bBuildFromScratch)
    : TypedDataContainer(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

CommEventTransformerListType::~CommEventTransformerListType() {
    CommEventTransformerListType::ClearEventTransformer();
}

zelString CommEventTransformerListType::GetBaseType() {
    return "CommEventTransformerListType";
}

void CommEventTransformerListType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool CommEventTransformerListType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString CommEventTransformerListType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* CommEventTransformerListType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* CommEventTransformerListType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool CommEventTransformerListType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput,
                                                     int QueryPos, bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool CommEventTransformerListType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                                       DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool CommEventTransformerListType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool CommEventTransformerListType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void CommEventTransformerListType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

int CommEventTransformerListType::GetEventTransformerLength() {
    return Framework::ListLength(m_EventTransformerList);
}

CommTransformerType* CommEventTransformerListType::GetEventTransformer(int Index) {
    return static_cast<CommTransformerType*>(Framework::GrowTo(*this, s_Rows[0], Index));
}

void CommEventTransformerListType::AddNewEventTransformer(CommTransformerType* szNew) {
    Framework::AddNewPlain(m_EventTransformerList, szNew);
}

bool CommEventTransformerListType::AutoFillTypeInfo() {
    return true;
}

void CommEventTransformerListType::AddEventTransformer(XMLDataWrapper* pData, XalanNode* spNode) {
    Framework::AddPlain(*this, s_Rows[0], pData, spNode);
}

void CommEventTransformerListType::ClearEventTransformer() {
    Framework::ClearPlain(m_EventTransformerList);
}
