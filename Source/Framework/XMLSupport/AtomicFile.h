#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace Framework {

/// A file could not be read; the text names the file, the step and what the system said.
class FileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A file could not be saved. Unless the text says so, it is as it was before.
class SaveError : public FileError {
public:
    using FileError::FileError;
};

/// Writes the file so that it is wholly the old or wholly the new one at any moment, also after a power cut: a
/// temporary beside it is written, forced to the disk and renamed. Throws SaveError.
///
/// A symbolic link is followed, one that leads nowhere is refused, as is anything that is no regular file. Mode, owner
/// and group of the old file are kept, and where they cannot be, saving is refused; a new file gets what the umask
/// leaves. Hard links, access control lists and extended attributes of the old file are lost. The folder must be
/// writable. A process that dies while saving may leave a temporary named `<file>.<random>.tmp`.
void SaveAtomically(const std::string& path, std::string_view bytes);

/// The whole file, or all that a pipe or device gives. Throws FileError, also for a folder and for more than `cap`
/// bytes.
std::string ReadFile(const std::string& path, std::size_t cap);

} // namespace Framework
