#pragma once

#include "Framework/FrameworkDataContainers/Walks/FieldTable.h"

namespace Framework {

/// Assigns a text to a scalar by the rules of a load: numbers and bools by SupportFunc, enumerations by their word.
void SetScalar(TypedDataContainer& object, const FieldRow& row, std::string_view text);

/// Whether the text is one that the field's kind of value has: a whole number, a bool word, a word of the vocabulary. A
/// load takes any text; this is for those who ask first.
bool IsLegalText(const FieldRow& row, const zelString& text);

/// The text that a dump writes for a scalar.
zelString ScalarText(TypedDataContainer& object, const FieldRow& row);

/// The same, of a text where it stands, of anything else in `room`.
std::string_view ScalarText(TypedDataContainer& object, const FieldRow& row, zelString& room);

/// The text of what the constructor gives a scalar.
zelString DefaultText(const FieldRow& row);

/// The element names of a class in the order of its fields, the parent's first.
std::vector<std::string_view> ElementOrder(const FieldTable& table);

/// Gives a scalar what the constructor gives it.
void ResetScalar(TypedDataContainer& object, const FieldRow& row);

} // namespace Framework
