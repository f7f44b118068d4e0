#pragma once

#include <optional>

#include "Framework/FrameworkDataContainers/Walks/FieldTable.h"

/// The operations that every generated class hands to its table. Each walk stands in the file of its name and says
/// there what it does with each form of field. A walk over a class with a generated parent walks the parent's table
/// first; what is virtual in a class (GetAttributeList, GetContainerName, Add<Name>, Clear<Name>) stays a virtual call
/// in every walk.
namespace Framework {

// NameByClass.cpp
void NameByClass(TypedDataContainer& object, const FieldTable& table) noexcept;
// Populate.cpp
bool Populate(TypedDataContainer& object, const FieldTable& table, XalanNode* pNode);
// Update.cpp
bool Update(TypedDataContainer& object, const FieldTable& table);
/// The same for one field, a scalar, or for one entry of a list of texts. False when it does not stand in the document.
bool UpdateField(TypedDataContainer& object, const FieldRow& row, std::optional<std::size_t> position);
// Merge.cpp; `line` is the line of the call, which an override problem is logged with
bool Merge(TypedDataContainer& object, const FieldTable& table, XMLDataWrapper* pMergeData, const zelString& sFeatureID,
           unsigned int line);
// DumpByQuery.cpp
bool DumpByQuery(TypedDataContainer& object, const FieldTable& table, const zelString& sParentQuery,
                 FullFunctionXMLDataWrapper* pOutput, int QueryPos, bool bIncludeMergeAttributes);
// DumpByNode.cpp
bool DumpByNode(TypedDataContainer& object, const FieldTable& table, DOMNode* pParentNode,
                FullFunctionXMLDataWrapper* pOutput, DOMNode*& pPassedCurrent, bool bIncludeMergeAttributes);
// Clone.cpp
TypedDataContainer* Clone(TypedDataContainer& object, const FieldTable& table);
// Reset.cpp
void Reset(TypedDataContainer& object, const FieldTable& table);
// Properties.cpp
zelString AttributePredicate(TypedDataContainer& object, const FieldTable& table);
ParameterList* AttributeParameters(TypedDataContainer& object, const FieldTable& table);
void Properties(TypedDataContainer& object, const FieldTable& table, ParameterList& pList);

} // namespace Framework
