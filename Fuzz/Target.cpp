#include "Target.h"

namespace Fuzz {

std::vector<std::string_view> DocumentsIn(std::string_view input) {
    constexpr std::string_view separator = "\n====\n";
    const std::size_t at = input.find(separator);
    if (at == std::string_view::npos) {
        return {input};
    }
    return {input.substr(0, at), input.substr(at + separator.size())};
}

const std::vector<Target>& Targets() {
    static const std::vector<Target> targets{
        {"Load", &Load, true},
        {"Merge", &Merge, true},
        {"Paths", &Paths, false},
    };
    return targets;
}

} // namespace Fuzz
