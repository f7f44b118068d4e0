#include "Framework/XMLSupport/KnownFiles.h"

#include <ctime>
#include <utility>

namespace Framework {

FileStamp::FileStamp(const struct stat& status)
    : device(status.st_dev), inode(status.st_ino), size(status.st_size), modifiedSeconds(status.st_mtim.tv_sec),
      modifiedNanoseconds(status.st_mtim.tv_nsec), changedSeconds(status.st_ctim.tv_sec),
      changedNanoseconds(status.st_ctim.tv_nsec) {}

bool FileStamp::IsRenamed(const FileStamp& before) const {
    FileStamp expected = before;
    expected.changedSeconds = changedSeconds;
    expected.changedNanoseconds = changedNanoseconds;
    return *this == expected;
}

bool FileStamp::IsFresh() const {
    // The times come from a clock that stands still for some milliseconds, and some file systems keep only every second
    // second of it.
    constexpr long long kCoarsest = 2;
    return std::time(nullptr) - changedSeconds <= kCoarsest;
}

const KnownFile* KnownFiles::Find(std::string_view path) const {
    if (path == loaded.path) {
        return &loaded;
    }
    return path == saved.path ? &saved : nullptr;
}

void KnownFiles::Saved(KnownFile file) noexcept {
    (file.path == loaded.path ? loaded : saved) = std::move(file);
}

} // namespace Framework
