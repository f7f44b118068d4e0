// Generated from the schemas; do not edit. Regenerate with the target "generate".
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"

#include "Framework/XMLSupport/EnumerationWords.h"

namespace {

// clang-format off

constexpr Framework::EnumerationWord kShadeTypeWords[] = {
    {"LIGHT", ShadeType::LIGHT},
    {"DARK", ShadeType::DARK},
    {"black", ShadeType::black},
};

constexpr Framework::EnumerationWord kSizeEnumWords[] = {
    {"SMALL", SizeEnum::SMALL},
    {"LARGE", SizeEnum::LARGE},
};
// clang-format on

} // namespace

ShadeType::ShadeType(LPCTSTR szValue) {
    ShadeType::AssignValue(szValue);
}

ShadeType::~ShadeType() {}

bool ShadeType::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kShadeTypeWords, m_Value, _Cmp);
}

ShadeType& ShadeType::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString ShadeType::StringOf() const {
    return Framework::WordOf(kShadeTypeWords, m_Value);
}

void ShadeType::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kShadeTypeWords, pList);
}

void ShadeType::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kShadeTypeWords, szVal);
}

SizeEnum::SizeEnum(LPCTSTR szValue) {
    SizeEnum::AssignValue(szValue);
}

SizeEnum::~SizeEnum() {}

bool SizeEnum::operator==(LPCTSTR _Cmp) const {
    return Framework::IsWordOf(kSizeEnumWords, m_Value, _Cmp);
}

SizeEnum& SizeEnum::operator=(LPCTSTR sVal) {
    AssignValue(sVal);
    return *this;
}

zelString SizeEnum::StringOf() const {
    return Framework::WordOf(kSizeEnumWords, m_Value);
}

void SizeEnum::GetContainedValueList(std::vector<zelString>& pList) {
    Framework::AppendWords(kSizeEnumWords, pList);
}

void SizeEnum::AssignValue(LPCTSTR szVal) {
    m_Value = Framework::NumberOf(kSizeEnumWords, szVal);
}
