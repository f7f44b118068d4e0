#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "Framework/XMLSupport/KnownFiles.h"

namespace Framework {

/// A file could not be read; the text names the file, the step and what the system said.
class FileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The whole file, or all that a pipe or device gives. Throws FileError, also for a folder and for more than `cap`
/// bytes: then it says `tooLarge` behind the path. Opening a pipe waits for somebody who writes into it, and reading
/// one until all have closed it.
///
/// A file whose size is above the cap is refused at once, and what has no size is never in memory with more than about
/// the cap.
///
/// A regular file is given to `known`, as it was before its first byte was read: what changes while it is read is a
/// change too.
std::string ReadFile(const std::string& path, std::size_t cap, std::string_view tooLarge = ": the file is too large",
                     KnownFile* known = nullptr);

} // namespace Framework
