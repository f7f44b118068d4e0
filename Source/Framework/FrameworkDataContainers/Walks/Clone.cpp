#include <memory>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/FrameworkDataContainers/Walks/Walks.h"

namespace Framework {

namespace {

/// Stands a shared wrapper on the object's own node for the length of a call.
class OwnNodeScope {
public:
    explicit OwnNodeScope(TypedDataContainer& object)
        : m_state(WrapperAccess::State(*ContainerAccess::Wrapper(object))), m_before(m_state.current) {
        m_state.current = ContainerAccess::Node(object);
    }
    ~OwnNodeScope() { m_state.current = m_before; }
    OwnNodeScope(const OwnNodeScope&) = delete;
    OwnNodeScope& operator=(const OwnNodeScope&) = delete;

private:
    WrapperState& m_state;
    NodeRef m_before;
};

} // namespace

TypedDataContainer* Clone(TypedDataContainer& object, const FieldTable& table) {
    if (ContainerAccess::IsReadOnly(object)) {
        object.SetLastError(-1, "Clone not supported for read only objects");
        return nullptr;
    }
    std::unique_ptr<TypedDataContainer> pNew(table.create(false));
    (*pNew).*table.autoFill = object.*table.autoFill;
    pNew->SetContainerName(object.GetContainerName());
    pNew->SetFeatureID(object.GetFeatureID());
    if (XMLDataWrapper* const pData = object.GetContainedDataPtr()) {
        const OwnNodeScope standing(object);
        pNew->LoadFromDataPacket(ContainerAccess::Lookup(object), pData, ContainerAccess::IsReadOnly(object));
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
