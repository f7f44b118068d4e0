#pragma once

#include <exception>
#include <new>

#include "Framework/ContainerBase/ContainerAccess.h"

namespace Framework {

/// Runs an outer operation of a container: no exception leaves it, what was thrown becomes the object's last error.
template <typename Step> auto Guarded(TypedDataContainer& object, Step step) noexcept -> decltype(step()) {
    try {
        return step();
    } catch (const std::bad_alloc&) {
        ContainerAccess::SetFixedError(object, -1, "out of memory");
    } catch (const std::exception& failure) {
        try {
            object.SetLastError(-1, "%s", failure.what());
        } catch (...) {
            ContainerAccess::SetFixedError(object, -1, "out of memory");
        }
    } catch (...) {
        ContainerAccess::SetFixedError(object, -1, "an exception of unknown kind");
    }
    return {};
}

} // namespace Framework
