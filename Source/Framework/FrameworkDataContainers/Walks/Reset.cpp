#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/Scalars.h"
#include "Framework/FrameworkDataContainers/Walks/TableIndex.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

namespace Framework {

void Reset(TypedDataContainer& object, const FieldTable& table) {
    if (table.parent != nullptr) {
        Reset(object, *table.parent);
    }
    ContainerAccess::ForgetEarlierNodes(object);
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

} // namespace Framework
