#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace Generator {

using FileTexts = std::map<std::string, std::string>;

/// How a folder differs from what it should hold; names of files.
struct FolderDifference {
    std::vector<std::string> missing;
    std::vector<std::string> changed;
    std::vector<std::string> left;   ///< generated once, and no longer
    std::vector<std::string> strays; ///< not generated at all

    bool IsEmpty() const { return missing.empty() && changed.empty() && left.empty() && strays.empty(); }
};

FolderDifference CompareFolder(const std::filesystem::path& folder, const FileTexts& files);

/// Writes what is missing or changed and removes generated files that are no longer made; strays stay. Files that are
/// as they should be are not touched, so nothing that includes them is built again.
void MendFolder(const std::filesystem::path& folder, const FileTexts& files, const FolderDifference& difference);

} // namespace Generator
