#pragma once

namespace Framework {

/// Called wherever the XML layer does a piece of work that may fail. Tests install a function that throws; it is null
/// in use. It is constinit, or every look would ask whether it is made by now.
using FaultFunction = void (*)(const char* where);
[[gnu::tls_model("initial-exec")]] extern thread_local constinit FaultFunction faultFunction;

inline void FaultPoint(const char* where) {
    if (faultFunction != nullptr) {
        faultFunction(where);
    }
}

} // namespace Framework
