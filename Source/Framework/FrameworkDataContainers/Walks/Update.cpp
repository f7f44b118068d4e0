#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

namespace Framework {

bool Update(TypedDataContainer& object, const FieldTable&) {
    if (ContainerAccess::IsReadOnly(object)) {
        object.SetLastError(-1, "Update not supported for read only objects");
    } else {
        object.SetLastError(-1, "UpdateContainedData is not supported yet");
    }
    return false;
}

} // namespace Framework
