#include "Framework/XMLSupport/ReadFile.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>

#include "Framework/XMLSupport/FileCalls.h"

namespace Framework {

std::string RealPath(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    return real == nullptr ? std::string() : std::string(real.get());
}

/// A buffer grows over halves of the cap, so that the old and the new one together hold no more than it, and no byte is
/// written before it is read.
std::optional<std::string> ReadAll(const Descriptor& file, std::size_t expected, std::size_t cap,
                                   const std::string& path) {
    constexpr std::size_t kPiece = std::size_t{64} * 1024;
    const auto piece = std::make_unique_for_overwrite<char[]>(kPiece);
    std::string bytes;
    bytes.reserve(expected);
    for (;;) {
        const ssize_t got = Retrying([&] { return ::read(file.Number(), piece.get(), kPiece); });
        if (got < 0) {
            Fail<FileError>(path, "cannot read", errno);
        }
        if (got == 0) {
            return bytes;
        }
        const std::size_t size = bytes.size() + static_cast<std::size_t>(got);
        if (size > cap) {
            return {};
        }
        if (size > bytes.capacity()) {
            std::size_t capacity = cap;
            while (capacity / 2 >= std::max(size, kPiece)) {
                capacity /= 2;
            }
            bytes.reserve(capacity);
        }
        bytes.append(piece.get(), static_cast<std::size_t>(got));
    }
}

std::string ReadFile(const std::string& path, std::size_t cap, std::string_view tooLarge, KnownFile* known) {
    Descriptor file(Retrying([&] { return ::open(path.c_str(), O_RDONLY | O_NOCTTY | O_CLOEXEC); }));
    if (!file.IsOpen()) {
        Fail<FileError>(path, "cannot open", errno);
    }
    struct stat status = {};
    if (::fstat(file.Number(), &status) != 0) {
        Fail<FileError>(path, "cannot read its size", errno);
    }
    if (S_ISDIR(status.st_mode)) {
        Fail<FileError>(path, "cannot read", EISDIR);
    }
    const bool isRegular = S_ISREG(status.st_mode);
    if (known != nullptr && isRegular) {
        known->path = RealPath(path);
        known->stamp = FileStamp(status);
    }
    const bool needsContent = known != nullptr && known->stamp.IsFresh(); // asked before reading, which may take long
    const std::size_t expected = isRegular ? static_cast<std::size_t>(status.st_size) : 0;
    std::optional<std::string> bytes;
    if (expected <= cap) {
        bytes = ReadAll(file, expected, cap, path);
    }
    if (!bytes.has_value()) {
        throw FileError(path + std::string(tooLarge));
    }
    if (needsContent) {
        known->content = KnownFile::HashOf(*bytes);
    }
    return std::move(*bytes);
}

} // namespace Framework
