#pragma once

#include <string>

#include "Framework/LoadLimits.h"

namespace Framework {

/// What is said when a document passes a limit: what it does, the limit's value, the member of LoadLimits that raises
/// it.
inline std::string LimitPassed(const std::string& what, const std::string& limit, const std::string& member) {
    return what + ", the limit is " + limit + "; raise LoadLimits::" + member + " with LoadLimits::Scope or SetDefault";
}

/// The same for the limit of nodes, at the one that is too much.
inline std::string NodesPassed(const LoadLimits& limits) {
    return LimitPassed("the document has too many nodes", std::to_string(limits.nodes), "nodes");
}

/// The same for the limit of memory, which can be passed at several places.
inline std::string MemoryPassed(const LoadLimits& limits) {
    return LimitPassed("parsing takes too much memory", std::to_string(limits.memory) + " bytes", "memory");
}

} // namespace Framework
