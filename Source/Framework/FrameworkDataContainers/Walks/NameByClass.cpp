#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

namespace Framework {

/// What a constructor ends with: SetContainerName with the element name of its class. The constructors of the class's
/// parents have done the same before, so the name is kept where it stands and not copied.
void NameByClass(TypedDataContainer& object, const FieldTable& table) noexcept {
    ContainerAccess::SetFixedName(object, table.elementName);
}

} // namespace Framework
