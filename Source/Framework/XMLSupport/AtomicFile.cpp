#include "Framework/XMLSupport/AtomicFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <random>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Framework {

namespace {

template <class Error> [[noreturn]] void Fail(const std::string& path, const std::string& step, int number) {
    // Not strerror: other threads may call it too.
    throw Error(path + ": " + step + ": " + std::generic_category().message(number));
}

/// A file descriptor; closed at the end of the block, where nobody asks for the result any more.
class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Number() const { return m_number; }
    bool IsOpen() const { return m_number >= 0; }
    /// 0 or the error. Closing is never tried twice: the number may belong to another file by then.
    int Close() {
        const int number = std::exchange(m_number, -1);
        return number < 0 || ::close(number) == 0 ? 0 : errno;
    }

private:
    int m_number;
};

template <class Call> auto Retrying(Call call) {
    decltype(call()) result;
    do {
        result = call();
    } while (result == -1 && errno == EINTR);
    return result;
}

/// Where the bytes go once links are followed.
struct Target {
    std::string folder;
    std::string name;
    bool exists = false;
    struct stat status = {};
};

std::string RealPath(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), &std::free);
    return real == nullptr ? std::string() : std::string(real.get());
}

Target FindTarget(const std::string& path) {
    Target target;
    std::string real = RealPath(path);
    if (real.empty()) {
        const int number = errno;
        struct stat link = {};
        if (::lstat(path.c_str(), &link) == 0 && S_ISLNK(link.st_mode)) {
            Fail<SaveError>(path, "the symbolic link leads to no file", number);
        }
        const std::size_t slash = path.rfind('/');
        const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
        const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
        const std::string realFolder = number == ENOENT && !name.empty() ? RealPath(folder) : std::string();
        if (realFolder.empty()) {
            Fail<SaveError>(path, "cannot find its folder", number);
        }
        real = (realFolder == "/" ? "" : realFolder) + "/" + name;
    } else {
        target.exists = true;
        if (::stat(real.c_str(), &target.status) != 0) {
            Fail<SaveError>(path, "cannot read its mode", errno);
        }
        if (!S_ISREG(target.status.st_mode)) {
            Fail<SaveError>(path, "cannot save to what is no regular file",
                            S_ISDIR(target.status.st_mode) ? EISDIR : EINVAL);
        }
    }
    const std::size_t slash = real.rfind('/');
    target.folder = slash == 0 ? "/" : real.substr(0, slash);
    target.name = real.substr(slash + 1);
    return target;
}

/// The new file beside the target until it takes its place. Unlinked unless it did.
class Temporary {
public:
    Temporary(const std::string& path, const Target& target)
        : m_path(path), m_target(target),
          m_folder(Retrying([&] { return ::open(target.folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); })),
          m_file(Create()) {}
    ~Temporary() {
        if (!m_name.empty()) {
            ::unlinkat(m_folder.Number(), m_name.c_str(), 0);
        }
    }
    Temporary(const Temporary&) = delete;
    Temporary& operator=(const Temporary&) = delete;

    void KeepOwnerAndMode();
    void Write(std::string_view bytes);
    void Finish();

private:
    int Create();

    const std::string& m_path;
    const Target& m_target;
    Descriptor m_folder;
    std::string m_name; // empty when there is none to unlink
    Descriptor m_file;
};

/// Not by mkostemp: it fixes the mode at 0600, and what the umask would make of 0666 cannot be asked without setting
/// it, for all threads. A file that replaces one starts closed to others, for the old one may be.
int Temporary::Create() {
    if (!m_folder.IsOpen()) {
        Fail<SaveError>(m_path, "cannot open its folder", errno);
    }
    constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
    constexpr std::size_t kLongestStem = 200;
    std::random_device random;
    std::uniform_int_distribution<std::size_t> letter(0, kLetters.size() - 1);
    for (int attempt = 0; attempt < 100; ++attempt) {
        std::string name = m_target.name.substr(0, kLongestStem) + ".";
        for (int i = 0; i < 8; ++i) {
            name.push_back(kLetters[letter(random)]);
        }
        name += ".tmp";
        const mode_t mode = m_target.exists ? 0600 : 0666;
        const int number = Retrying([&] {
            return ::openat(m_folder.Number(), name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                            mode);
        });
        if (number >= 0) {
            m_name = std::move(name);
            return number;
        }
        if (errno != EEXIST) {
            Fail<SaveError>(m_path, "cannot create a temporary file in its folder", errno);
        }
    }
    Fail<SaveError>(m_path, "cannot create a temporary file in its folder", EEXIST);
}

void Temporary::KeepOwnerAndMode() {
    if (!m_target.exists) {
        return;
    }
    struct stat mine = {};
    if (::fstat(m_file.Number(), &mine) != 0) {
        Fail<SaveError>(m_path, "cannot read the mode of the temporary file", errno);
    }
    const struct stat& old = m_target.status;
    if ((mine.st_uid != old.st_uid || mine.st_gid != old.st_gid) &&
        Retrying([&] { return ::fchown(m_file.Number(), old.st_uid, old.st_gid); }) != 0) {
        Fail<SaveError>(m_path, "cannot keep its owner and group", errno);
    }
    // Behind fchown, which may clear bits of the mode.
    if (Retrying([&] { return ::fchmod(m_file.Number(), old.st_mode & 07777); }) != 0) {
        Fail<SaveError>(m_path, "cannot keep its mode", errno);
    }
}

void Temporary::Write(std::string_view bytes) {
    // The kernel takes no more than 2 GB in one call.
    constexpr std::size_t kPiece = std::size_t{1} << 30U;
    while (!bytes.empty()) {
        const ssize_t written =
            Retrying([&] { return ::write(m_file.Number(), bytes.data(), std::min(bytes.size(), kPiece)); });
        if (written <= 0) {
            Fail<SaveError>(m_path, "cannot write", written == 0 ? EIO : errno);
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void Temporary::Finish() {
    // Never tried again: the kernel reports a lost page once and takes it for written after that.
    if (::fsync(m_file.Number()) != 0) {
        Fail<SaveError>(m_path, "cannot force it to the disk", errno);
    }
    if (const int number = m_file.Close(); number != 0) {
        Fail<SaveError>(m_path, "cannot close", number);
    }
    if (::renameat(m_folder.Number(), m_name.c_str(), m_folder.Number(), m_target.name.c_str()) != 0) {
        Fail<SaveError>(m_path, "cannot replace the old file", errno);
    }
    m_name.clear();
    if (::fsync(m_folder.Number()) != 0) {
        Fail<SaveError>(
            m_path,
            "the new file is in place, but may not survive a power cut: its folder cannot be forced to the disk",
            errno);
    }
}

} // namespace

void SaveAtomically(const std::string& path, std::string_view bytes) {
    const Target target = FindTarget(path);
    Temporary temporary(path, target);
    temporary.KeepOwnerAndMode();
    temporary.Write(bytes);
    temporary.Finish();
}

std::string ReadFile(const std::string& path, std::size_t cap) {
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
    // One byte more than the size says, so that the end shows without another round; sizes may lie.
    constexpr std::size_t kPiece = std::size_t{64} * 1024;
    const auto expected = S_ISREG(status.st_mode) ? static_cast<std::size_t>(status.st_size) + 1 : kPiece;
    std::string bytes;
    std::size_t size = 0;
    for (;;) {
        if (size == bytes.size()) {
            bytes.resize(size == 0 ? std::min(expected, cap) + 1 : std::min(size * 2, cap) + 1);
        }
        const ssize_t got = Retrying([&] { return ::read(file.Number(), bytes.data() + size, bytes.size() - size); });
        if (got < 0) {
            Fail<FileError>(path, "cannot read", errno);
        }
        size += static_cast<std::size_t>(got);
        if (size > cap) {
            throw FileError(path + ": the file is larger than the limit of " + std::to_string(cap) + " bytes");
        }
        if (got == 0) {
            bytes.resize(size);
            return bytes;
        }
    }
}

} // namespace Framework
