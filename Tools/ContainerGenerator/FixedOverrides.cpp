#include "FixedOverrides.h"

namespace Generator {

const std::vector<FixedOverride>& FixedOverrides() {
    static const std::vector<FixedOverride> overrides = {
        {"void", "GetProperties", {"ParameterList& pList"}, "Framework::Properties(*this, s_Table, pList);"},
        {"bool",
         "MergeDataMembers",
         {"XMLDataWrapper* pMergeData", "zelString sFeatureID"},
         "return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);"},
        {"zelString", "GetAttributeList", {}, "return Framework::AttributePredicate(*this, s_Table);"},
        {"ParameterList*", "GetPLAttributeList", {}, "return Framework::AttributeParameters(*this, s_Table);"},
        {"TypedDataContainer*", "Clone", {}, "return Framework::Clone(*this, s_Table);"},
        {"bool",
         "DumpMergeContents",
         {"const zelString& sParentQuery", "FullFunctionXMLDataWrapper* pOutput", "int QueryPos",
          "bool bIncludeMergeAttributes"},
         "return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);"},
        {"bool",
         "DumpMergeContentsII",
         {"DOMNode* pParentNode", "FullFunctionXMLDataWrapper* pOutput", "DOMNode*& pPassedCurrent",
          "bool bIncludeMergeAttributes"},
         "return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, "
         "bIncludeMergeAttributes);"},
        {"bool", "UpdateContainedData", {}, "return Framework::Update(*this, s_Table);"},
        {"bool", "PopulateDataMembers", {"XalanNode* pNode"}, "return Framework::Populate(*this, s_Table, pNode);"},
        {"void", "ResetDataMembers", {}, "Framework::Reset(*this, s_Table);"},
    };
    return overrides;
}

} // namespace Generator
