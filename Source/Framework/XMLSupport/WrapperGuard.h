#pragma once

#include "Framework/XMLSupport/CaughtFailure.h"
#include "Framework/XMLSupport/WrapperState.h"

namespace Framework {

/// Runs a step that may fail for reasons of its own (files, text that is not well-formed, memory): no exception leaves
/// it, the wrapper keeps what it says. True when it ended well.
template <typename Step> bool Guarded(WrapperState& state, Step step) noexcept {
    try {
        step();
        return true;
    } catch (...) {
        state.SetError(-1, CaughtFailure().Text());
        return false;
    }
}

} // namespace Framework
