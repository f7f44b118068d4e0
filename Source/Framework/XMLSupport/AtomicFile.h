#pragma once

#include <string>
#include <string_view>

#include "Framework/XMLSupport/KnownFiles.h"
#include "Framework/XMLSupport/ReadFile.h"

namespace Framework {

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
/// writable.
///
/// A process that dies while saving may leave a temporary named `<file>.<random>.tmp`. It is nobody's any more and may
/// be deleted; the library does not do that, for it cannot know one from the temporary of a process that still writes.
void SaveAtomically(const std::string& path, std::string_view bytes);

/// What saving does with a file that it would replace.
enum class Overwrite {
    Any,
    OnlyKnown, ///< refuses one that is not as `known` has it, and to make one again that `known` has and that is gone
};

/// The same, and the file becomes a known one as soon as it is in place. A change of the old file is noticed until just
/// before the rename; where there was no file, none is ever overwritten, on file systems that can promise it.
/// Throws FileError, too, when the old file cannot be read for that.
void SaveAtomically(const std::string& path, std::string_view bytes, Overwrite overwrite, KnownFiles& known);

} // namespace Framework
