#pragma once

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/XMLSupport/CaughtFailure.h"

namespace Framework {

/// What was caught becomes the object's last error. To be called in a handler.
inline void ReportCaught(TypedDataContainer& object) noexcept {
    const CaughtFailure failure;
    if (failure.IsLiteral()) {
        ContainerAccess::SetFixedError(object, -1, failure.Text());
        return;
    }
    try {
        object.SetLastError(-1, "%s", failure.Text());
    } catch (...) { // copying the text failed
        ContainerAccess::SetFixedError(object, -1, "out of memory");
    }
}

/// Runs an outer operation of a container: no exception leaves it, what was thrown becomes the object's last error.
template <typename Step> auto Guarded(TypedDataContainer& object, Step step) noexcept -> decltype(step()) {
    try {
        return step();
    } catch (...) {
        ReportCaught(object);
    }
    return {};
}

} // namespace Framework
