#include "Framework/FrameworkDataContainers/Walks/Scalars.h"

#include <algorithm>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/TableIndex.h"
#include "Framework/XMLSupport/Utf.h"

namespace Framework {

namespace {

/// Reading gives 0 for what is no number; a zero that was meant has a zero digit and nothing that counts.
bool IsZero(const zelString& text) {
    return text.find('0') != std::string::npos && text.find_first_not_of("0.+-eE \t\r\n") == std::string::npos;
}

} // namespace

void SetScalar(TypedDataContainer& object, const FieldRow& row, std::string_view text) {
    switch (row.value) {
    case FieldValue::String:
        (object.*row.member.text).assign(text);
        break;
    case FieldValue::Bool:
        object.*row.member.flag = SupportFunc::GetBoolValue(zelString(text));
        break;
    case FieldValue::Int:
        object.*row.member.number = SupportFunc::GetIntValue(zelString(text));
        break;
    case FieldValue::Double:
        object.*row.member.real = SupportFunc::GetDoubleValue(zelString(text));
        break;
    case FieldValue::Enumeration:
        row.enumeration->get(object) = zelString(text).c_str();
        break;
    case FieldValue::Container:
        break;
    }
}

bool IsLegalText(const FieldRow& row, const zelString& text) {
    switch (row.value) {
    case FieldValue::String:
        return IsXmlText(text);
    case FieldValue::Bool:
        return SupportFunc::GetBoolValue(text) || text == "false";
    case FieldValue::Int: {
        const zelString back = SupportFunc::GetStrValue(SupportFunc::GetIntValue(text));
        return back == text;
    }
    case FieldValue::Double:
        return SupportFunc::GetDoubleValue(text) != 0.0 || IsZero(text);
    case FieldValue::Enumeration: {
        std::vector<zelString> words;
        row.enumeration->words(words);
        return std::find(words.begin(), words.end(), text) != words.end();
    }
    case FieldValue::Container:
        break;
    }
    return false;
}

zelString ScalarText(TypedDataContainer& object, const FieldRow& row) {
    switch (row.value) {
    case FieldValue::String:
        return object.*row.member.text;
    case FieldValue::Bool:
        return SupportFunc::GetStrValue(object.*row.member.flag);
    case FieldValue::Int:
        return SupportFunc::GetStrValue(static_cast<long>(object.*row.member.number));
    case FieldValue::Double:
        return SupportFunc::GetStrValue(object.*row.member.real);
    case FieldValue::Enumeration:
        return row.enumeration->get(object).StringOf();
    case FieldValue::Container:
        break;
    }
    return {};
}

std::string_view ScalarText(TypedDataContainer& object, const FieldRow& row, zelString& room) {
    if (row.value == FieldValue::String) {
        return object.*row.member.text;
    }
    room = ScalarText(object, row);
    return room;
}

zelString DefaultText(const FieldRow& row) {
    switch (row.value) {
    case FieldValue::String:
        return zelString(row.initial.text);
    case FieldValue::Bool:
        return SupportFunc::GetStrValue(row.initial.flag);
    case FieldValue::Int:
        return SupportFunc::GetStrValue(static_cast<long>(row.initial.number));
    case FieldValue::Double:
        return SupportFunc::GetStrValue(0.0);
    case FieldValue::Enumeration:
        return row.enumeration == nullptr ? zelString() : row.enumeration->word(0);
    case FieldValue::Container:
        break;
    }
    return {};
}

std::vector<std::string_view> ElementOrder(const FieldTable& table) {
    std::vector<std::string_view> order;
    if (table.parent != nullptr) {
        order = ElementOrder(*table.parent);
    }
    for (const FieldRow& row : table.rows) {
        if (row.form != FieldForm::Attribute) {
            order.push_back(row.name);
        }
    }
    return order;
}

zelString AttributeTextOf(TypedDataContainer& object, std::string_view attribute) {
    for (const FieldTable* table = TableOf(object); table != nullptr; table = table->parent) {
        for (const FieldRow& row : table->rows) {
            if (row.form == FieldForm::Attribute && row.name == attribute) {
                return ScalarText(object, row);
            }
        }
    }
    return {};
}

void ResetScalar(TypedDataContainer& object, const FieldRow& row) {
    switch (row.value) {
    case FieldValue::String:
        (object.*row.member.text).assign(row.initial.text);
        break;
    case FieldValue::Bool:
        object.*row.member.flag = row.initial.flag;
        break;
    case FieldValue::Int:
        object.*row.member.number = row.initial.number;
        break;
    case FieldValue::Double:
        object.*row.member.real = 0.0;
        break;
    case FieldValue::Enumeration:
        row.enumeration->setNumber(object, 0);
        break;
    case FieldValue::Container:
        break;
    }
}

} // namespace Framework
