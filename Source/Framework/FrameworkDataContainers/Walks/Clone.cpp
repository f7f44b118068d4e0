#include <memory>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

namespace Framework {

TypedDataContainer* Clone(TypedDataContainer& object, const FieldTable& table) {
    if (ContainerAccess::IsReadOnly(object)) {
        object.SetLastError(-1, "Clone not supported for read only objects");
        return nullptr;
    }
    std::unique_ptr<TypedDataContainer> pNew(table.create(false));
    (*pNew).*table.autoFill = object.*table.autoFill;
    pNew->SetContainerName(object.GetContainerName());
    pNew->SetFeatureID(object.GetFeatureID());
    if (ContainerAccess::Wrapper(object) != nullptr) {
        LoadFromNodeOf(*pNew, object);
    } else {
        const std::unique_ptr<XMLDataWrapper> content(object.BuildAndReturnDataContent());
        if (content != nullptr) {
            pNew->LoadFromDataPacket(ContainerAccess::Lookup(object), content.get(),
                                     ContainerAccess::IsReadOnly(object));
        }
    }
    return pNew.release();
}

} // namespace Framework
