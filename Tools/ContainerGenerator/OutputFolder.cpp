#include "OutputFolder.h"

#include "CodeText.h"

#include "Framework/XMLSupport/AtomicFile.h"

#include <algorithm>
#include <limits>

namespace Generator {

namespace {

std::string ReadWhole(const std::filesystem::path& path) {
    return Framework::ReadFile(path.string(), std::numeric_limits<std::size_t>::max() / 2);
}

} // namespace

FolderDifference CompareFolder(const std::filesystem::path& folder, const FileTexts& files) {
    FolderDifference difference;
    for (const auto& [name, text] : files) {
        const std::filesystem::path path = folder / name;
        if (!std::filesystem::exists(path)) {
            difference.missing.push_back(name);
        } else if (ReadWhole(path) != text) {
            difference.changed.push_back(name);
        }
    }
    if (std::filesystem::exists(folder)) {
        for (const auto& entry : std::filesystem::directory_iterator(folder)) {
            const std::string name = entry.path().filename().string();
            if (files.contains(name)) {
                continue;
            }
            const bool isGenerated = entry.is_regular_file() && ReadWhole(entry.path()).starts_with(kGeneratedMark);
            (isGenerated ? difference.left : difference.strays).push_back(name);
        }
    }
    std::sort(difference.left.begin(), difference.left.end());
    std::sort(difference.strays.begin(), difference.strays.end());
    return difference;
}

void MendFolder(const std::filesystem::path& folder, const FileTexts& files, const FolderDifference& difference) {
    std::filesystem::create_directories(folder);
    for (const auto* names : {&difference.missing, &difference.changed}) {
        for (const std::string& name : *names) {
            Framework::SaveAtomically((folder / name).string(), files.at(name));
        }
    }
    for (const std::string& name : difference.left) {
        std::filesystem::remove(folder / name);
    }
}

} // namespace Generator
