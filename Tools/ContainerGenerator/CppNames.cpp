#include "CppNames.h"

#include <algorithm>
#include <array>

namespace Generator {

namespace {

// Sorted, as the other tables of this file: they are searched by halves.
constexpr auto kKeywords = std::to_array<std::string_view>({
    "alignas",       "alignof",
    "and",           "and_eq",
    "asm",           "auto",
    "bitand",        "bitor",
    "bool",          "break",
    "case",          "catch",
    "char",          "char16_t",
    "char32_t",      "char8_t",
    "class",         "co_await",
    "co_return",     "co_yield",
    "compl",         "concept",
    "const",         "const_cast",
    "consteval",     "constexpr",
    "constinit",     "continue",
    "decltype",      "default",
    "delete",        "do",
    "double",        "else",
    "enum",          "explicit",
    "export",        "extern",
    "false",         "float",
    "for",           "friend",
    "goto",          "if",
    "inline",        "int",
    "long",          "mutable",
    "namespace",     "new",
    "noexcept",      "not",
    "not_eq",        "nullptr",
    "operator",      "or",
    "or_eq",         "private",
    "protected",     "public",
    "register",      "reinterpret_cast",
    "requires",      "return",
    "short",         "signed",
    "sizeof",        "static",
    "static_assert", "static_cast",
    "struct",        "switch",
    "template",      "this",
    "thread_local",  "throw",
    "true",          "try",
    "typedef",       "typeid",
    "typename",      "union",
    "unsigned",      "using",
    "virtual",       "void",
    "volatile",      "wchar_t",
    "while",         "xor",
    "xor_eq",
});

constexpr auto kReservedClassNames = std::to_array<std::string_view>({
    "CatalogClass",
    "CatalogEnumeration",
    "CatalogField",
    "ContainerCatalog",
    "DOMDocument",
    "DOMNode",
    "FieldTableIndex",
    "Framework",
    "FrameworkDataContainers",
    "FrameworkDataContainersEnums",
    "FullFunctionXMLDataWrapper",
    "LPCTSTR",
    "LoadLimits",
    "MergeJournal",
    "OverrideIssue",
    "ParameterList",
    "SimpleDataContainer",
    "StructuralConfigLoader",
    "SupportFunc",
    "TCHAR",
    "TypedDataContainer",
    "TypedDataEnumeration",
    "ValueLookupBase",
    "XMLDataWrapper",
    "XalanNode",
    "Zelvon",
    "zelString",
    "zelStringDef",
});

constexpr auto kBaseMembers = std::to_array<std::string_view>({
    "AppendCDataValue",
    "AutoFillTypeInfo",
    "BuildAndReturnDataContent",
    "BuildUpdateQuery",
    "Clear",
    "Clone",
    "CreateCDataNode",
    "CreateTextNode",
    "CreateTextNodeWithAttr",
    "DumpMergeContents",
    "DumpMergeContentsII",
    "DumpMergeResults",
    "GetAttributeList",
    "GetAutoFillTypeInfo",
    "GetBaseType",
    "GetCDataValue",
    "GetContainedDataPtr",
    "GetContainerName",
    "GetFeatureID",
    "GetLastError",
    "GetLastErrorNum",
    "GetMergeAction",
    "GetMergeAttributes",
    "GetPLAttributeList",
    "GetPLMergeAttributes",
    "GetPlacementFeature",
    "GetPlacementIndex",
    "GetPlacementOrder",
    "GetProperties",
    "GetSimpleTypeData",
    "InitializeConfig",
    "LoadFromDOMNode",
    "LoadFromDataPacket",
    "LoadFromFile",
    "LoadFromModel",
    "LoadFromTemplate",
    "MergeDataMembers",
    "MergeElement",
    "MergeFromDOMNode",
    "MergeFromDataPacket",
    "MergeFromFile",
    "MergeFromModel",
    "MergeFromTemplate",
    "PopulateDataMembers",
    "ResetDataMembers",
    "SaveContents",
    "SetAutoFillTypeInfo",
    "SetContainedDataPtr",
    "SetContainerName",
    "SetFeatureID",
    "SetLastError",
    "SetSimpleTypeData",
    "UpdateContainedData",
    "Valid",
    "m_bAutoFillTypeInfo",
});

static_assert(std::is_sorted(kKeywords.begin(), kKeywords.end()));
static_assert(std::is_sorted(kReservedClassNames.begin(), kReservedClassNames.end()));
static_assert(std::is_sorted(kBaseMembers.begin(), kBaseMembers.end()));

bool Holds(const auto& table, std::string_view name) {
    return std::binary_search(table.begin(), table.end(), name);
}

bool IsLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') || character == '_';
}

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

bool IsIdentifier(std::string_view name) {
    return !name.empty() && IsLetter(name.front()) &&
           std::all_of(name.begin(), name.end(), [](char next) { return IsLetter(next) || IsDigit(next); }) &&
           !Holds(kKeywords, name);
}

} // namespace

void DemandIdentifier(const Written& name, std::string_view what) {
    if (!IsIdentifier(name.text)) {
        Refuse(name.origin, std::string(what) + " '" + name.text +
                                "' is no C++ identifier, expected letters, digits and '_', and no keyword");
    }
}

bool IsReservedClassName(std::string_view name) {
    return Holds(kReservedClassNames, name);
}

bool IsBaseMember(std::string_view name) {
    return Holds(kBaseMembers, name);
}

} // namespace Generator
