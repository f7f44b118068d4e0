// Preloaded into a program, or part of it, tells of its calls that concern files, and makes one of them go wrong. It
// follows these variables, and does nothing without the first; a program may set and unset them as it goes:
//   FAULT_FOLDER  the folder whose files, and itself, the counted calls concern; absolute and without links. "*": every
//                 file that has a name, and sockets
//   FAULT_LOG     a file outside of it that gets a line for each: name, file below the folder, result
//   FAULT_AT      the number of the call, from 1
//   FAULT_ACTION  ENOSPC, EIO, EINTR, EINVAL: it fails with that and does nothing; EIO-on: so do all later ones;
//                 short: half is written or read; kill-before, kill-after: the process dies; torn: half is written,
//                 then it dies; meddle: before the call somebody else overwrites or makes the first byte of
//                 FAULT_MEDDLE
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::string_view Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::string PathOf(int descriptor) {
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    std::string path(4096, '\0');
    const ssize_t length = ::readlink(link.c_str(), path.data(), path.size());
    path.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    return path;
}

std::string PathAt(int folder, std::string_view name) {
    return name.starts_with('/') || folder == AT_FDCWD ? std::string(name) : PathOf(folder) + "/" + std::string(name);
}

/// The name below the folder, "." for the folder itself, nothing for what is elsewhere.
std::string NameInFolder(std::string_view path) {
    const std::string_view folder = Variable("FAULT_FOLDER");
    if (folder == "*") {
        return std::string(path);
    }
    if (!path.starts_with(folder)) {
        return {};
    }
    path.remove_prefix(folder.size());
    return path.empty() ? "." : path.starts_with('/') ? std::string(path.substr(1)) : std::string();
}

void Append(const std::string& path, const std::string& line) {
    const auto file = static_cast<int>(
        ::syscall(SYS_openat, AT_FDCWD, path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600));
    ::syscall(SYS_write, file, line.data(), line.size());
    ::syscall(SYS_close, file);
}

void Meddle() {
    const std::string path(Variable("FAULT_MEDDLE"));
    const auto file =
        static_cast<int>(::syscall(SYS_openat, AT_FDCWD, path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    ::syscall(SYS_write, file, "X", 1);
    ::syscall(SYS_close, file);
}

/// 0 for an action that is no error.
int ErrorOf(std::string_view action) {
    constexpr std::pair<std::string_view, int> errors[] = {
        {"ENOSPC", ENOSPC}, {"EIO", EIO}, {"EINTR", EINTR}, {"EINVAL", EINVAL}};
    for (const auto& [name, error] : errors) {
        if (name == action) {
            return error;
        }
    }
    return 0;
}

int calls = 0;

struct Nothing {
    void operator()() const {}
};

/// One call, counted, logged, and the fault done to it when it is the one. `pathOf()` is the file it concerns;
/// `real(size)` does it, with that much of the data when it writes; `fail` is what it does to the file although it
/// fails.
template <class PathOf, class Real, class Fail = Nothing>
auto Call(const char* name, PathOf pathOf, Real real, std::size_t size = 0, Fail fail = {}) -> decltype(real(size)) {
    using Result = decltype(real(size));
    if (Variable("FAULT_FOLDER").empty()) { // nothing is allocated then: memory may be running out
        return real(size);
    }
    const std::string file = NameInFolder(pathOf());
    if (file.empty()) {
        return real(size);
    }
    const std::string log(Variable("FAULT_LOG"));
    const std::string_view action = Variable("FAULT_ACTION");
    const int at = std::atoi(std::string(Variable("FAULT_AT")).c_str());
    const bool isIt = at != 0 && ++calls == at;
    const std::string line = std::string(name) + " " + file + " ";
    if (isIt && (action == "kill-before" || (action == "torn" && size == 0))) {
        Append(log, line + "killed\n");
        ::kill(::getpid(), SIGKILL);
    }
    int error = isIt ? ErrorOf(action) : 0;
    if (action == "EIO-on" && at != 0 && calls >= at) {
        error = EIO;
    }
    if (error != 0) {
        fail();
        Append(log, line + "-1\n");
        errno = error;
        return -1;
    }
    if (isIt && action == "meddle") {
        Meddle();
    }
    const bool half = isIt && size > 1 && (action == "short" || action == "torn");
    const Result result = real(half ? size / 2 : size);
    const int kept = errno;
    Append(log, line + std::to_string(result) + "\n");
    if (isIt && (action == "kill-after" || action == "torn")) {
        ::kill(::getpid(), SIGKILL);
    }
    errno = kept;
    return result;
}

auto FileOf(int descriptor) {
    return [descriptor] { return PathOf(descriptor); };
}

int OpenAt(int folder, const char* path, int flags, mode_t mode) {
    return Call(
        "open", [&] { return PathAt(folder, path); },
        [&](std::size_t) { return static_cast<int>(::syscall(SYS_openat, folder, path, flags, mode)); });
}

std::FILE* OpenStream(const char* path, const char* mode) {
    static const auto real = reinterpret_cast<decltype(&std::fopen)>(::dlsym(RTLD_NEXT, "fopen"));
    std::FILE* stream = nullptr;
    Call(
        "open", [path] { return std::string(path); },
        [&](std::size_t) {
            stream = real(path, mode);
            return stream == nullptr ? -1 : 0;
        });
    return stream;
}

int RenameAt(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
    return Call(
        "rename", [&] { return PathAt(fromFolder, from) + " " + NameInFolder(PathAt(toFolder, to)); },
        [&](std::size_t) { return static_cast<int>(::syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags)); });
}

} // namespace

#pragma GCC visibility push(default)

extern "C" {

int openat(int folder, const char* path, int flags, ...) {
    std::va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return OpenAt(folder, path, flags, mode);
}

int open(const char* path, int flags, ...) {
    std::va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return OpenAt(AT_FDCWD, path, flags, mode);
}

std::FILE* fopen(const char* path, const char* mode) {
    return OpenStream(path, mode);
}

std::FILE* fopen64(const char* path, const char* mode) {
    return OpenStream(path, mode);
}

int socket(int domain, int type, int protocol) noexcept {
    return Call(
        "socket", [] { return std::string("*"); },
        [&](std::size_t) { return static_cast<int>(::syscall(SYS_socket, domain, type, protocol)); });
}

ssize_t write(int file, const void* data, size_t size) {
    return Call(
        "write", FileOf(file), [&](std::size_t part) { return ssize_t{::syscall(SYS_write, file, data, part)}; }, size);
}

ssize_t read(int file, void* data, size_t size) {
    return Call(
        "read", FileOf(file), [&](std::size_t part) { return ssize_t{::syscall(SYS_read, file, data, part)}; }, size);
}

int fsync(int file) {
    return Call("fsync", FileOf(file), [&](std::size_t) { return static_cast<int>(::syscall(SYS_fsync, file)); });
}

int fchmod(int file, mode_t mode) noexcept {
    return Call("fchmod", FileOf(file),
                [&](std::size_t) { return static_cast<int>(::syscall(SYS_fchmod, file, mode)); });
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
    return Call("fchown", FileOf(file),
                [&](std::size_t) { return static_cast<int>(::syscall(SYS_fchown, file, owner, group)); });
}

int close(int file) {
    // The number is free behind it, also when it failed.
    const auto real = [&](std::size_t = 0) { return static_cast<int>(::syscall(SYS_close, file)); };
    return Call("close", FileOf(file), real, 0, real);
}

int renameat(int fromFolder, const char* from, int toFolder, const char* to) noexcept {
    return RenameAt(fromFolder, from, toFolder, to, 0);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) noexcept {
    return RenameAt(fromFolder, from, toFolder, to, flags);
}

int unlinkat(int folder, const char* path, int flags) noexcept {
    return Call(
        "unlink", [&] { return PathAt(folder, path); },
        [&](std::size_t) { return static_cast<int>(::syscall(SYS_unlinkat, folder, path, flags)); });
}
}

#pragma GCC visibility pop
