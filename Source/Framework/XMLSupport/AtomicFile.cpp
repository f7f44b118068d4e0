#include "Framework/XMLSupport/AtomicFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <optional>
#include <random>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Framework/XMLSupport/FileCalls.h"

namespace Framework {

namespace {

constexpr const char* kChanged =
    ": not saved: the file has changed since it was loaded or last saved; load it again to keep that change";
constexpr const char* kGone = ": not saved: the file that was loaded or last saved is no longer there";
constexpr const char* kUnknown = ": not saved: there is a file that was neither loaded nor saved from here";

/// Where the bytes go once links are followed.
struct Target {
    std::string folder;
    std::string name;
    bool exists = false;
    struct stat status = {};

    std::string Path() const { return (folder == "/" ? "" : folder) + "/" + name; }
};

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
    /// Behind this its content and size are fixed.
    FileStamp Close();
    /// Takes the target's place. With `onlyKnown` not unless the target is the known file, or there is neither.
    void Rename(bool onlyKnown, const KnownFile* known);
    /// What `closed` became by the renaming; itself when the target is another one already.
    FileStamp Renamed(const FileStamp& closed) const;
    void ForceFolder();

private:
    int Create();
    void CheckTarget(const KnownFile* known) const;
    void CheckTargetContent(const KnownFile& known) const;
    FileStamp TargetStamp() const;
    bool MoveWhereNothingIs();

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

FileStamp Temporary::Close() {
    // Never tried again: the kernel reports a lost page once and takes it for written after that.
    if (::fsync(m_file.Number()) != 0) {
        Fail<SaveError>(m_path, "cannot force it to the disk", errno);
    }
    struct stat status = {};
    if (::fstat(m_file.Number(), &status) != 0) {
        Fail<SaveError>(m_path, "cannot read the times of the temporary file", errno);
    }
    if (const int number = m_file.Close(); number != 0) {
        Fail<SaveError>(m_path, "cannot close", number);
    }
    return FileStamp(status);
}

void Temporary::Rename(bool onlyKnown, const KnownFile* known) {
    if (onlyKnown && !m_target.exists) {
        if (known != nullptr) {
            throw SaveError(m_path + kGone);
        }
        if (MoveWhereNothingIs()) {
            return;
        }
    } else if (onlyKnown) {
        CheckTarget(known);
    }
    if (::renameat(m_folder.Number(), m_name.c_str(), m_folder.Number(), m_target.name.c_str()) != 0) {
        Fail<SaveError>(m_path, "cannot replace the old file", errno);
    }
    m_name.clear();
}

void Temporary::CheckTarget(const KnownFile* known) const {
    if (known == nullptr) {
        throw SaveError(m_path + kUnknown);
    }
    const auto checkStamp = [&] {
        if (TargetStamp() != known->stamp) {
            throw SaveError(m_path + kChanged);
        }
    };
    checkStamp();
    if (known->content.has_value()) {
        CheckTargetContent(*known);
        checkStamp();
    }
}

void Temporary::CheckTargetContent(const KnownFile& known) const {
    const Descriptor file(Retrying(
        [&] { return ::openat(m_folder.Number(), m_target.name.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC); }));
    if (!file.IsOpen()) {
        Fail<SaveError>(m_path, "cannot read whether it has changed", errno);
    }
    const auto size = static_cast<std::size_t>(known.stamp.size);
    const std::optional<std::string> bytes = ReadAll(file, size, size, m_path);
    if (!bytes.has_value() || KnownFile::HashOf(*bytes) != *known.content) {
        throw SaveError(m_path + kChanged);
    }
}

FileStamp Temporary::TargetStamp() const {
    struct stat status = {};
    if (::fstatat(m_folder.Number(), m_target.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
        return FileStamp(status);
    }
    if (errno == ENOENT) {
        throw SaveError(m_path + kGone);
    }
    Fail<SaveError>(m_path, "cannot read whether it has changed", errno);
}

/// False on a file system that cannot do it, when no file is there.
bool Temporary::MoveWhereNothingIs() {
    const int folder = m_folder.Number();
    if (::renameat2(folder, m_name.c_str(), folder, m_target.name.c_str(), RENAME_NOREPLACE) == 0) {
        m_name.clear();
        return true;
    }
    int number = errno;
    if (number == EINVAL || number == ENOSYS) {
        struct stat status = {};
        number = ::fstatat(folder, m_target.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 ? EEXIST : errno;
    }
    if (number == ENOENT) {
        return false;
    }
    if (number == EEXIST) {
        throw SaveError(m_path + kUnknown);
    }
    Fail<SaveError>(m_path, "cannot give the new file its name", number);
}

FileStamp Temporary::Renamed(const FileStamp& closed) const {
    struct stat status = {};
    if (::fstatat(m_folder.Number(), m_target.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return closed;
    }
    const FileStamp now(status);
    return now.IsRenamed(closed) ? now : closed;
}

void Temporary::ForceFolder() {
    if (::fsync(m_folder.Number()) != 0) {
        Fail<SaveError>(
            m_path,
            "the new file is in place, but may not survive a power cut: its folder cannot be forced to the disk",
            errno);
    }
}

} // namespace

void SaveAtomically(const std::string& path, std::string_view bytes) {
    KnownFiles known;
    SaveAtomically(path, bytes, Overwrite::Any, known);
}

void SaveAtomically(const std::string& path, std::string_view bytes, Overwrite overwrite, KnownFiles& known) {
    const Target target = FindTarget(path);
    // Nothing may fail between the rename and its being known.
    KnownFile saved = {target.Path(), {}, KnownFile::HashOf(bytes)};
    Temporary temporary(path, target);
    temporary.KeepOwnerAndMode();
    temporary.Write(bytes);
    const FileStamp closed = temporary.Close();
    temporary.Rename(overwrite == Overwrite::OnlyKnown, known.Find(saved.path));
    saved.stamp = temporary.Renamed(closed);
    known.Saved(std::move(saved));
    temporary.ForceFolder();
}

} // namespace Framework
