#include "Robustness/HostileWatch.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <malloc.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <ucontext.h>
#include <unistd.h>

namespace Robustness {

namespace {

/// Texts one behind the other, each with a zero at its end. Filled without allocating: a signal handler does it too.
template <std::size_t Size> struct TextRow {
    std::size_t used;
    std::array<char, Size> bytes;

    void Add(std::string_view text) {
        const std::size_t length = std::min(text.size(), Size - std::min(Size, used + 1));
        std::copy_n(text.data(), length, bytes.data() + used);
        used += length;
        bytes[std::min(used++, Size - 1)] = '\0';
    }
    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (std::size_t at = 0; at < std::min(used, Size); at += texts.back().size() + 1) {
            texts.emplace_back(bytes.data() + at);
        }
        return texts;
    }
};

} // namespace

/// Begins as zeros, of which the kernel makes as many as are needed: without initialisers, which would touch all of
/// them.
struct WatchBoard {
    bool finished;
    std::array<char, 512> step;
    TextRow<(1U << 18U)> failures;
    TextRow<(1U << 16U)> reached;
};

namespace {

/// A call that carries this as its sixth argument comes from the watch itself.
constexpr unsigned kOwnCall = 0x7A3D19C5U;

constexpr std::array kHarmless{SYS_read,        SYS_write,        SYS_pread64,        SYS_pwrite64,     SYS_readv,
                               SYS_writev,      SYS_close,        SYS_fstat,          SYS_lseek,        SYS_mmap,
                               SYS_munmap,      SYS_mremap,       SYS_mprotect,       SYS_madvise,      SYS_brk,
                               SYS_futex,       SYS_rt_sigaction, SYS_rt_sigprocmask, SYS_rt_sigreturn, SYS_sigaltstack,
                               SYS_getrusage,   SYS_getpid,       SYS_clock_gettime,  SYS_gettid,       SYS_tgkill,
                               SYS_sched_yield, SYS_getrandom,    SYS_exit,           SYS_gettimeofday, SYS_exit_group,
                               SYS_prlimit64,   SYS_getrlimit,    SYS_ftruncate,      SYS_clock_getres, SYS_pipe2};

struct PathCall {
    long number;
    const char* name;
    std::size_t path; // which argument it is
};

constexpr std::array kPathCalls {
    PathCall{SYS_openat, "openat", 1}, PathCall{SYS_newfstatat, "fstatat", 1}, PathCall{SYS_statx, "statx", 1},
        PathCall{SYS_readlinkat, "readlink", 1}, PathCall{SYS_faccessat, "access", 1},
#if defined(__x86_64__)
        PathCall{SYS_open, "open", 0}, PathCall{SYS_stat, "stat", 0}, PathCall{SYS_access, "access", 0},
        PathCall{SYS_readlink, "readlink", 0},
#endif
};

WatchBoard* board = nullptr; // of this process; a signal handler has no other way to it

using Arguments = std::array<std::uint64_t, 6>;

/// Records the call and carries it out.
long Carry(long number, const Arguments& arguments) {
    std::array<char, 512> line{};
    const auto* const known =
        std::find_if(kPathCalls.begin(), kPathCalls.end(), [&](const PathCall& call) { return call.number == number; });
    if (known == kPathCalls.end()) {
        std::snprintf(line.data(), line.size(), "system call %ld", number);
        board->reached.Add(line.data());
        return -EPERM;
    }
    const auto* const path = reinterpret_cast<const char*>(arguments[known->path]);
    if (number != SYS_newfstatat || *path != '\0') { // else it is the status of an open descriptor
        std::snprintf(line.data(), line.size(), "%s %s", known->name, path);
        board->reached.Add(line.data());
    }
    const long result = ::syscall(number, arguments[0], arguments[1], arguments[2], arguments[3], arguments[4],
                                  static_cast<std::uint64_t>(kOwnCall));
    return result == -1 ? -errno : result;
}

void OnCall(int /*signal*/, siginfo_t* info, void* context) {
    const int before = errno;
    auto& machine = static_cast<ucontext_t*>(context)->uc_mcontext;
#if defined(__x86_64__)
    const auto at = [&](int which) { return static_cast<std::uint64_t>(machine.gregs[which]); };
    const Arguments arguments{at(REG_RDI), at(REG_RSI), at(REG_RDX), at(REG_R10), at(REG_R8), at(REG_R9)};
    machine.gregs[REG_RAX] = Carry(info->si_syscall, arguments);
#elif defined(__aarch64__)
    Arguments arguments{};
    std::copy_n(machine.regs, arguments.size(), arguments.begin());
    machine.regs[0] = static_cast<std::uint64_t>(Carry(info->si_syscall, arguments));
#else
#error "tell where this machine keeps the arguments of a system call"
#endif
    errno = before;
}

/// From here on every call that is not harmless ends in OnCall. There is no way back for this process.
void WatchCalls() {
    struct sigaction action = {};
    action.sa_sigaction = &OnCall;
    action.sa_flags = SA_SIGINFO | SA_NODEFER;
    ::sigaction(SIGSYS, &action, nullptr);

    std::vector<sock_filter> filter{BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (const long number : kHarmless) {
        filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(number), 0, 1));
        filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    }
    filter.push_back(BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[5])));
    filter.push_back(BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, kOwnCall, 0, 1));
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    filter.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRAP));
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 || ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0) {
        throw std::runtime_error(std::string("the kernel does not let system calls be watched: ") +
                                 std::strerror(errno));
    }
}

void Limit(int resource, rlim_t most) {
    const rlimit limit{most, most + 1}; // the signal of the lower one has a name of its own
    ::setrlimit(static_cast<__rlimit_resource>(resource), &limit);
}

int peakDescriptor = -1; // set back to what is held now by writing there

[[noreturn]] void RunChild(unsigned mostSeconds, const std::function<void(Watch&)>& work) {
    Watch watch(*board);
    try {
        Limit(RLIMIT_CORE, 0);
        Limit(RLIMIT_CPU, mostSeconds);
        ::alarm(mostSeconds * 4); // what waits uses no processor time
        if (!kSanitized) {
            Limit(RLIMIT_AS, rlim_t{8} << 30U); // a bomb that goes off hurts nobody else
        }
        peakDescriptor = ::open("/proc/self/clear_refs", O_WRONLY | O_CLOEXEC);
        WatchCalls();
        work(watch);
    } catch (const std::exception& failure) {
        watch.Fail(std::string("an exception escaped: ") + failure.what());
    } catch (...) {
        watch.Fail("an exception of unknown kind escaped");
    }
    board->finished = true;
    ::_exit(0);
}

double PeakMegabytes() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

} // namespace

void Watch::At(std::string_view step) {
    const std::size_t length = std::min(step.size(), m_board.step.size() - 1);
    std::copy_n(step.data(), length, m_board.step.data());
    m_board.step[length] = '\0';
}

void Watch::Fail(const std::string& failure) {
    m_board.failures.Add(std::string(m_board.step.data()) + ": " + failure);
}

double Watch::MegabytesOf(const std::function<void()>& work) {
    ::malloc_trim(0);
    if (::write(peakDescriptor, "5", 1) != 1) {
        Fail("the peak of the memory cannot be set back");
    }
    const double before = PeakMegabytes();
    work();
    return PeakMegabytes() - before;
}

Watched RunWatched(unsigned mostSeconds, const std::function<void(Watch&)>& work) {
    void* const memory = ::mmap(nullptr, sizeof(WatchBoard), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        throw std::runtime_error("no shared memory");
    }
    board = static_cast<WatchBoard*>(memory);
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        RunChild(mostSeconds, work);
    }
    int status = 0;
    if (child < 0 || ::waitpid(child, &status, 0) != child) {
        throw std::runtime_error("no child process");
    }
    Watched watched{board->failures.Texts(), board->reached.Texts()};
    if (WIFSIGNALED(status)) {
        const int signal = WTERMSIG(status);
        watched.failures.push_back(std::string(board->step.data()) + ": ended by signal " + std::to_string(signal) +
                                   " (" + ::strsignal(signal) + ")");
    } else if (!board->finished) {
        watched.failures.push_back(std::string(board->step.data()) + ": exit was called, with status " +
                                   std::to_string(WEXITSTATUS(status)));
    }
    ::munmap(memory, sizeof(WatchBoard));
    return watched;
}

} // namespace Robustness
