#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include <sys/stat.h>

namespace Framework {

/// What tells a file from another one of its name and from itself with other content: device, inode, size, and the
/// times of the last change of content and status to the nanosecond. A program can set back the first of these times,
/// not the second.
struct FileStamp {
    FileStamp() = default;
    explicit FileStamp(const struct stat& status);

    bool operator==(const FileStamp&) const = default;
    /// The same, except for what renaming changes in a file.
    bool IsRenamed(const FileStamp& before) const;
    /// Whether the clock of files may have stood still since: a change would not have to show in the stamp.
    bool IsFresh() const;

    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    long long modifiedSeconds = 0;
    long long modifiedNanoseconds = 0;
    long long changedSeconds = 0;
    long long changedNanoseconds = 0;
};

/// A file as it was when somebody read or wrote it.
struct KnownFile {
    std::string path; ///< without links; empty when there is no file
    FileStamp stamp;
    std::optional<std::size_t> content; ///< HashOf what it held, where the stamp alone would not do

    static std::size_t HashOf(std::string_view bytes) { return std::hash<std::string_view>()(bytes); }
};

/// The file that a document was loaded from, and the one it was saved to last when that is another one.
struct KnownFiles {
    KnownFile loaded;
    KnownFile saved;

    /// Null when the file of that path, which is without links, is neither.
    const KnownFile* Find(std::string_view path) const;
    void Saved(KnownFile file) noexcept;
};

} // namespace Framework
