#include <memory>

#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

namespace Framework {

zelString AttributePredicate(TypedDataContainer& object, const FieldTable& table) {
    zelString sAttributes;
    if (table.parent != nullptr) {
        sAttributes = AttributePredicate(object, *table.parent);
    }
    for (const FieldRow& row : table.rows) {
        if (row.form != FieldForm::Attribute) {
            continue;
        }
        if (!sAttributes.empty()) {
            sAttributes += " and ";
        }
        sAttributes.append("@").append(row.name).append("='").append(ScalarText(object, row)).append("' ");
    }
    return sAttributes;
}

ParameterList* AttributeParameters(TypedDataContainer& object, const FieldTable& table) {
    std::unique_ptr<ParameterList> pList(table.parent == nullptr ? new ParameterList
                                                                 : AttributeParameters(object, *table.parent));
    for (const FieldRow& row : table.rows) {
        if (row.form == FieldForm::Attribute) {
            const zelString text = ScalarText(object, row);
            pList->Add(&text, dcString, row.name.data(), false);
        }
    }
    return pList.release();
}

void Properties(TypedDataContainer& object, const FieldTable& table, ParameterList& pList) {
    for (const FieldRow& row : table.rows) {
        if (IsProperty(row)) {
            const zelString text = ScalarText(object, row);
            pList.Add(&text, dcString, row.name.data(), false);
        }
    }
}

} // namespace Framework
