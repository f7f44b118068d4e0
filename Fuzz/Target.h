#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Fuzzing: each target takes any bytes, lets the library work on them, and throws Violation when something does not
/// hold that must hold for every input. The same functions run under libFuzzer (`./fuzz`), which makes the inputs up,
/// and in a test of every build, which replays the seeds and the inputs that once found a defect.
namespace Fuzz {

/// What must hold for every input did not. No std::exception, so that no handler of another failure takes it.
struct Violation {
    std::string what;
};

/// Throws a Violation unless it holds; `detail` is what a person wants to see then.
inline void Expect(bool holds, std::string_view what, std::string_view detail = {}) {
    if (!holds) {
        throw Violation{std::string(what) + (detail.empty() ? "" : ": ") + std::string(detail)};
    }
}

/// Load, read all, clone, dump, turn to a DOM, update; a refused document changes nothing. The input is a document.
void Load(std::string_view input);
/// Merge an override into a base. The input is both, split by a line "====".
void Merge(std::string_view input);
/// Find and make nodes of small fixed documents by query. The input is queries, one on each line.
void Paths(std::string_view input);

struct Target {
    std::string_view name;
    void (*run)(std::string_view input);
};

const std::vector<Target>& Targets();

} // namespace Fuzz
