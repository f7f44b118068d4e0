#pragma once

#include <memory>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/FieldTable.h"

namespace Framework {

/// The child of a field, with the name and the feature that its place in the object gives it; made when there is none,
/// and stored when it has them.
inline TypedDataContainer& ChildInPlace(TypedDataContainer& object, const FieldRow& row) {
    std::unique_ptr<TypedDataContainer> fresh;
    TypedDataContainer* child = row.child->get(object);
    if (child == nullptr) {
        fresh.reset(row.child->create());
        child = fresh.get();
    }
    child->SetContainerName(row.name.data());
    child->SetFeatureID(object.GetFeatureID());
    ContainerAccess::SetLookup(*child, ContainerAccess::Lookup(object));
    if (fresh != nullptr) {
        row.child->store(object, fresh.release());
    }
    return *child;
}

} // namespace Framework
