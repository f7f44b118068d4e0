#include "Framework/XMLSupport/DocumentChanges.h"

#include <algorithm>

namespace Framework {

void SortEachOnce(std::vector<std::uint32_t>& numbers) {
    constexpr int fewRuns = 4;
    auto sorted = std::is_sorted_until(numbers.begin(), numbers.end());
    for (int run = 0; sorted != numbers.end(); ++run) {
        if (run == fewRuns) {
            std::sort(numbers.begin(), numbers.end());
            break;
        }
        const auto next = std::is_sorted_until(sorted, numbers.end());
        std::inplace_merge(numbers.begin(), sorted, next);
        sorted = next;
    }
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
}

} // namespace Framework
