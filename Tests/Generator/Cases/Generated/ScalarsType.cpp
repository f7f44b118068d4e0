// Generated from Scalars.xsd; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/ScalarsType.h"

#include "Framework/FrameworkDataContainers/Walks/Lists.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

// clang-format off
constinit const Framework::FieldRow ScalarsType::s_Rows[] = {
    Framework::Element("Text", &ScalarsType::m_Text),
    Framework::Element("TextSet", &ScalarsType::m_TextSet, "a \"b\\c\""),
    Framework::CDataElement("Raw", &ScalarsType::m_Raw),
    Framework::Element("Flag", &ScalarsType::m_Flag),
    Framework::Element("FlagSet", &ScalarsType::m_FlagSet, true),
    Framework::Element("Count", &ScalarsType::m_Count),
    Framework::Element("CountSet", &ScalarsType::m_CountSet, (-2147483647 - 1)),
    Framework::Element("Weight", &ScalarsType::m_Weight),
    Framework::EnumElement<&ScalarsType::m_Shade>("Shade", "ShadeType", "black"),
    Framework::EnumElement<&ScalarsType::m_Size>("Size", "SizeEnum"),
    Framework::Child<&ScalarsType::m_Inner>("Inner", "ScalarsType"),
    Framework::Attribute("name", &ScalarsType::m_name),
    Framework::Attribute("Label", &ScalarsType::m_Label, "none"),
    Framework::Attribute("Open", &ScalarsType::m_Open),
    Framework::Attribute("OpenSet", &ScalarsType::m_OpenSet, true),
    Framework::Attribute("Level", &ScalarsType::m_Level),
    Framework::Attribute("LevelSet", &ScalarsType::m_LevelSet, 7),
};

constinit const Framework::FieldTable ScalarsType::s_Table = {
    .className = "ScalarsType",
    .elementName = "Scalars",
    .parent = nullptr,
    .isStructuralConfigLoader = true,
    .isRoot = true,
    .rows = s_Rows,
    .create = &Framework::CreateContainer<ScalarsType>,
    .type = &typeid(ScalarsType),
    .autoFill = Framework::ToBase(&ScalarsType::m_bAutoFillTypeInfo),
};
// clang-format on

ScalarsType::ScalarsType(bool bBuildFromScratch) : StructuralConfigLoader(bBuildFromScratch) {
    Framework::NameByClass(*this, s_Table);
}

ScalarsType::~ScalarsType() {
    delete m_Inner;
}

zelString ScalarsType::GetBaseType() {
    return "ScalarsType";
}

void ScalarsType::GetProperties(ParameterList& pList) {
    Framework::Properties(*this, s_Table, pList);
}

bool ScalarsType::MergeDataMembers(XMLDataWrapper* pMergeData, zelString sFeatureID) {
    return Framework::Merge(*this, s_Table, pMergeData, sFeatureID, __LINE__);
}

zelString ScalarsType::GetAttributeList() {
    return Framework::AttributePredicate(*this, s_Table);
}

ParameterList* ScalarsType::GetPLAttributeList() {
    return Framework::AttributeParameters(*this, s_Table);
}

TypedDataContainer* ScalarsType::Clone() {
    return Framework::Clone(*this, s_Table);
}

bool ScalarsType::DumpMergeContents(const zelString& sParentQuery, FullFunctionXMLDataWrapper* pOutput, int QueryPos,
                                    bool bIncludeMergeAttributes) {
    return Framework::DumpByQuery(*this, s_Table, sParentQuery, pOutput, QueryPos, bIncludeMergeAttributes);
}

bool ScalarsType::DumpMergeContentsII(DOMNode* pParentNode, FullFunctionXMLDataWrapper* pOutput,
                                      DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes) {
    return Framework::DumpByNode(*this, s_Table, pParentNode, pOutput, pPassedCurrent, bIncludeMergeAttributes);
}

bool ScalarsType::UpdateContainedData() {
    return Framework::Update(*this, s_Table);
}

bool ScalarsType::PopulateDataMembers(XalanNode* pNode) {
    return Framework::Populate(*this, s_Table, pNode);
}

void ScalarsType::ResetDataMembers() {
    Framework::Reset(*this, s_Table);
}

zelString ScalarsType::GetText() {
    return m_Text;
}

void ScalarsType::SetText(LPCTSTR szNew) {
    m_Text = szNew;
}

zelString ScalarsType::GetTextSet() {
    return m_TextSet;
}

void ScalarsType::SetTextSet(LPCTSTR szNew) {
    m_TextSet = szNew;
}

zelString ScalarsType::GetRaw() {
    return m_Raw;
}

void ScalarsType::SetRaw(LPCTSTR szNew) {
    m_Raw = szNew;
}

bool ScalarsType::GetFlag() {
    return m_Flag;
}

void ScalarsType::SetFlag(bool szNew) {
    m_Flag = szNew;
}

bool ScalarsType::GetFlagSet() {
    return m_FlagSet;
}

void ScalarsType::SetFlagSet(bool szNew) {
    m_FlagSet = szNew;
}

int ScalarsType::GetCount() {
    return m_Count;
}

void ScalarsType::SetCount(int szNew) {
    m_Count = szNew;
}

int ScalarsType::GetCountSet() {
    return m_CountSet;
}

void ScalarsType::SetCountSet(int szNew) {
    m_CountSet = szNew;
}

double ScalarsType::GetWeight() {
    return m_Weight;
}

void ScalarsType::SetWeight(double szNew) {
    m_Weight = szNew;
}

ShadeType ScalarsType::GetShade() {
    return m_Shade;
}

void ScalarsType::SetShade(ShadeType szNew) {
    m_Shade = szNew;
}

SizeEnum ScalarsType::GetSize() {
    return m_Size;
}

void ScalarsType::SetSize(SizeEnum szNew) {
    m_Size = szNew;
}

ScalarsType* ScalarsType::GetInner() {
    return m_Inner;
}

void ScalarsType::SetInner(ScalarsType* szNew) {
    Framework::ReplaceChild(m_Inner, szNew);
}

zelString ScalarsType::Getname() {
    return m_name;
}

void ScalarsType::Setname(LPCTSTR szNew) {
    m_name = szNew;
}

zelString ScalarsType::GetLabel() {
    return m_Label;
}

void ScalarsType::SetLabel(LPCTSTR szNew) {
    m_Label = szNew;
}

bool ScalarsType::GetOpen() {
    return m_Open;
}

void ScalarsType::SetOpen(bool szNew) {
    m_Open = szNew;
}

bool ScalarsType::GetOpenSet() {
    return m_OpenSet;
}

void ScalarsType::SetOpenSet(bool szNew) {
    m_OpenSet = szNew;
}

int ScalarsType::GetLevel() {
    return m_Level;
}

void ScalarsType::SetLevel(int szNew) {
    m_Level = szNew;
}

int ScalarsType::GetLevelSet() {
    return m_LevelSet;
}

void ScalarsType::SetLevelSet(int szNew) {
    m_LevelSet = szNew;
}

bool ScalarsType::AutoFillTypeInfo() {
    return true;
}
