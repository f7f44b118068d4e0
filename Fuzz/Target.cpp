#include "Target.h"

namespace Fuzz {

std::vector<std::string_view> DocumentsOfWhole(std::string_view input) {
    return {input};
}

std::vector<std::string_view> NoDocuments(std::string_view) {
    return {};
}

const std::vector<Target>& Targets() {
    static const std::vector<Target> targets{
        {"Load", &Load, &DocumentsOfWhole},
        {"Merge", &Merge, &DocumentsOfMerge},
        {"Paths", &Paths, &NoDocuments},
    };
    return targets;
}

} // namespace Fuzz
