#include "Framework/NearestNames.h"

#include <algorithm>
#include <utility>

namespace {

char Lower(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// Twice the edit distance, where letters that differ in case alone count half a change.
std::size_t Distance(std::string_view left, std::string_view right) {
    std::vector<std::size_t> row(right.size() + 1);
    for (std::size_t j = 0; j < row.size(); ++j) {
        row[j] = 2 * j;
    }
    for (std::size_t i = 0; i < left.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], 2 * (i + 1));
        for (std::size_t j = 0; j < right.size(); ++j) {
            const bool alike = Lower(left[i]) == Lower(right[j]);
            const std::size_t change = left[i] == right[j] ? 0U : alike ? 1U : 2U;
            const std::size_t best = std::min({diagonal + change, row[j] + 2, row[j + 1] + 2});
            diagonal = std::exchange(row[j + 1], best);
        }
    }
    return row.back();
}

} // namespace

std::vector<std::string> NearestNames(std::string_view name, const std::vector<std::string>& known, std::size_t limit) {
    // Longer texts are no slip of the hand, and comparing them would take its time.
    constexpr std::size_t longest = 80;
    std::vector<std::pair<std::size_t, std::string>> near;
    const std::size_t tolerated = 2 * std::max<std::size_t>(2, name.size() / 3);
    for (const std::string& candidate : known) {
        if (name.size() > longest || candidate.size() > longest) {
            continue;
        }
        const bool isSameButCase = std::equal(name.begin(), name.end(), candidate.begin(), candidate.end(),
                                              [](char left, char right) { return Lower(left) == Lower(right); });
        const std::size_t distance = isSameButCase ? 1 : Distance(name, candidate);
        // Of a short name nothing may be left when all of it is changed.
        if (distance <= tolerated && distance < 2 * std::max(name.size(), candidate.size())) {
            near.emplace_back(distance, candidate);
        }
    }
    std::stable_sort(near.begin(), near.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<std::string> names;
    for (const auto& [distance, candidate] : near) {
        if (names.size() == limit) {
            break;
        }
        names.push_back(candidate);
    }
    return names;
}
