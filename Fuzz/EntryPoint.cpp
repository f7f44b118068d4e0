// What libFuzzer calls, for the one target that FRAMEWORK_FUZZ_TARGET names.

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "Target.h"

namespace {

const Fuzz::Target& TheTarget() {
    for (const Fuzz::Target& target : Fuzz::Targets()) {
        if (target.name == FRAMEWORK_FUZZ_TARGET) {
            return target;
        }
    }
    std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Fuzz::Target& target = TheTarget();
    try {
        target.run({reinterpret_cast<const char*>(data), size}); // NOLINT: bytes are what both sides mean
    } catch (const Fuzz::Violation& violation) {
        std::fprintf(stderr, "VIOLATION in %s: %s\n", FRAMEWORK_FUZZ_TARGET, violation.what.c_str());
        std::abort();
    }
    return 0;
}
