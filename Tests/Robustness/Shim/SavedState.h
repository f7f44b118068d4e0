#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace Robustness {

constexpr const char* kLaneFile = "lane.xml";

/// The document before and after the one change that is saved; the two differ in length.
inline std::string LaneText(bool changed, std::size_t size) {
    return "<Lane>\r\n  <Version>" + std::string(changed ? "two" : "1") + "</Version><!-- " + std::string(size, '.') +
           " -->\r\n</Lane>\r\n";
}

/// What a folder holds after a save: "old", "new", "none" or "damaged" for the document, and " stray" when anything
/// stands beside it.
inline std::string SavedState(const std::filesystem::path& folder, std::size_t size) {
    std::string state = "none";
    std::string stray;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().filename() != kLaneFile) {
            stray = " stray";
            continue;
        }
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        state = text == LaneText(false, size) ? "old" : text == LaneText(true, size) ? "new" : "damaged";
    }
    return state + stray;
}

} // namespace Robustness
