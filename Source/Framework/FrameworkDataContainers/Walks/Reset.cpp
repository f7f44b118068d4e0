#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/TableIndex.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

namespace Framework {

void Reset(TypedDataContainer& object, const FieldTable& table) {
    if (table.parent != nullptr) {
        Reset(object, *table.parent);
    }
    ContainerAccess::ForgetNodes(object);
    for (const FieldRow& row : table.rows) {
        if (row.list != nullptr) {
            row.list->clear(object);
        } else if (row.child == nullptr) {
            ResetScalar(object, row);
        } else if (TypedDataContainer* const child = row.child->get(object)) {
            child->ResetDataMembers();
        }
    }
}

namespace {

void DeleteChildren(TypedDataContainer& object, const FieldTable& table) {
    if (table.parent != nullptr) {
        DeleteChildren(object, *table.parent);
    }
    for (const FieldRow& row : table.rows) {
        if (row.child != nullptr) {
            TypedDataContainer* const child = row.child->get(object);
            row.child->store(object, nullptr);
            delete child;
        }
    }
}

} // namespace

void MakeEmpty(TypedDataContainer& object) {
    if (const FieldTable* const table = TableOf(object)) {
        DeleteChildren(object, *table); // first: resetting them would be work for nothing
    }
    object.ResetDataMembers();
}

namespace {

/// Keeps the values of all attributes, the parent's too, and puts them back when it ends, however that comes: the key
/// that an entry stands under is one of them.
class AttributeKeeper {
public:
    explicit AttributeKeeper(TypedDataContainer& object) : m_object(object) {
        for (const FieldTable* table = TableOf(object); table != nullptr; table = table->parent) {
            for (const FieldRow& row : table->rows) {
                if (row.form == FieldForm::Attribute) {
                    m_kept.emplace_back(&row, ScalarText(object, row));
                }
            }
        }
    }

    /// Allocates nothing: a text changes places with the one that is there.
    ~AttributeKeeper() {
        for (auto& [row, text] : m_kept) {
            if (row->value == FieldValue::String) {
                (m_object.*row->member.text).swap(text);
            } else {
                SetScalar(m_object, *row, text);
            }
        }
    }
    AttributeKeeper(const AttributeKeeper&) = delete;
    AttributeKeeper& operator=(const AttributeKeeper&) = delete;

private:
    TypedDataContainer& m_object;
    std::vector<std::pair<const FieldRow*, zelString>> m_kept;
};

} // namespace

void ResetButAttributes(TypedDataContainer& object) {
    const AttributeKeeper attributes(object);
    object.ResetDataMembers();
}

} // namespace Framework
