// What libFuzzer calls, for the one target that FRAMEWORK_FUZZ_TARGET names.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "Target.h"
#include "XmlMutator.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

const Fuzz::Target& TheTarget() {
    for (const Fuzz::Target& target : Fuzz::Targets()) {
        if (target.name == FRAMEWORK_FUZZ_TARGET) {
            return target;
        }
    }
    std::abort();
}

std::string_view AsText(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size}; // NOLINT: bytes are what both sides mean
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Fuzz::Target& target = TheTarget();
    try {
        target.run(AsText(data, size));
    } catch (const Fuzz::Violation& violation) {
        std::fprintf(stderr, "VIOLATION in %s: %s\n", FRAMEWORK_FUZZ_TARGET, violation.what.c_str());
        std::abort();
    }
    return 0;
}

/// One time in three the fuzzer's own mutations, which know nothing of XML.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed) {
    static const Fuzz::Target& target = TheTarget();
    const std::string_view input = AsText(data, size);
    const bool isOurs = target.takesDocuments && seed % 3 != 0;
    const std::string changed = isOurs ? Fuzz::MutateDocument(input, seed / 3) : std::string();
    if (!isOurs || changed.size() > maxSize || changed == input) {
        return LLVMFuzzerMutate(data, size, maxSize);
    }
    std::memcpy(data, changed.data(), changed.size());
    return changed.size();
}
