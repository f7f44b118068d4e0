// Saves for the tests of saving, which judge what it leaves.
//   SaveDriver sweep STYLE FOLDER SIZE ACTION...  one save for each call and action, each in a folder
//   FOLDER/CALL-ACTION
//                                                 of its own, up to the call that no save makes. A line for each: call,
//                                                 action, result, state of the folder, result of a second save without
//                                                 faults, end; parted by tabs. Needs the fault shim preloaded.
//   SaveDriver kill STYLE FOLDER SIZE ROUNDS      saves two texts in turn until it is killed at a random moment; a
//                                                 line with folder and end for each round
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Framework/XMLDataWrapper.h"
#include "SavedState.h"

namespace {

namespace fs = std::filesystem;
using namespace Robustness;

constexpr const char* kInPlace = "the new file is in place";

struct Careless {
    bool inPlace = false; ///< writes over the old file
    bool forced = true;
    bool looksAtForcing = true;
};

bool WriteByDescriptor(const std::string& path, const std::string& text, const Careless& how) {
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0640);
    if (file < 0) {
        return false;
    }
    bool good = true;
    for (std::size_t done = 0; good && done < text.size();) {
        const ssize_t written = ::write(file, text.data() + done, text.size() - done);
        good = written > 0;
        done += good ? static_cast<std::size_t>(written) : 0;
    }
    if (good && how.forced) {
        good = ::fsync(file) == 0 || !how.looksAtForcing;
    }
    return (::close(file) == 0) && good;
}

/// Empty, or what went wrong.
std::string SaveCarelessly(const std::string& path, const std::string& text, const Careless& how) {
    if (how.inPlace) {
        return WriteByDescriptor(path, text, how) ? "" : "cannot save";
    }
    const std::string temporary = path + ".tmp";
    const bool good = WriteByDescriptor(temporary, text, how);
    if (!good || ::rename(temporary.c_str(), path.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return "cannot save";
    }
    const int folder = ::open(fs::path(path).parent_path().c_str(), O_RDONLY);
    const bool forced = folder >= 0 && ::fsync(folder) == 0;
    ::close(folder);
    return forced ? "" : kInPlace;
}

/// One document on its way from the disk to the disk.
class Saver {
public:
    Saver(const std::string& style, const fs::path& folder, std::size_t size)
        : m_style(style), m_path((folder / kLaneFile).string()), m_size(size) {
        fs::create_directories(folder);
        if (style == "create") {
            Check(m_document.LoadXMLText(LaneText(false, size), false));
            return;
        }
        std::ofstream(m_path, std::ios::binary) << LaneText(false, size);
        fs::permissions(m_path, fs::perms{0640});
        if ((style == "replace" || style == "refuse") && ::geteuid() == 0) {
            constexpr uid_t kNobody = 65534;
            Check(::chown(m_path.c_str(), kNobody, kNobody) == 0);
        }
        Check(m_document.LoadXMLFile(m_path.c_str(), false));
    }

    void Change(bool changed) {
        m_changed = changed;
        Check(m_document.SetQueryValue("Version", changed ? "two" : "1", false));
    }

    /// "saved", or "failed: " and the error.
    std::string Save() {
        std::string error;
        if (m_style == "replace") {
            error = m_document.SaveXMLFile(m_path.c_str()) ? "" : m_document.GetLastError();
        } else if (m_style == "refuse" || m_style == "create") {
            error = m_document.SaveXMLFile(m_path.c_str(), true) ? "" : m_document.GetLastError();
        } else {
            error = SaveCarelessly(m_path, LaneText(m_changed, m_size),
                                   {.inPlace = m_style.starts_with("in-place"),
                                    .forced = !m_style.ends_with("unforced"),
                                    .looksAtForcing = m_style != "forcing-ignored"});
        }
        return error.empty() ? "saved" : "failed: " + error;
    }

private:
    static void Check(bool good) {
        if (!good) {
            std::abort();
        }
    }

    std::string m_style;
    std::string m_path;
    std::size_t m_size;
    bool m_changed = false;
    XMLDataWrapper m_document;
};

void SaveWithFault(const std::string& style, const fs::path& folder, std::size_t size, int call,
                   const std::string& action) {
    Saver saver(style, folder, size);
    saver.Change(true);
    const std::string target = (folder / kLaneFile).string();
    ::setenv("FAULT_LOG", (folder.string() + ".log").c_str(), 1);
    ::setenv("FAULT_AT", std::to_string(call).c_str(), 1);
    ::setenv("FAULT_ACTION", action.c_str(), 1);
    ::setenv("FAULT_MEDDLE", target.c_str(), 1);
    ::setenv("FAULT_FOLDER", folder.c_str(), 1);
    const std::string result = saver.Save();
    ::unsetenv("FAULT_FOLDER");
    const std::string state = SavedState(folder, size);
    const std::string again = result == "saved" && action != "meddle" ? "-" : saver.Save();
    std::printf("\t%s\t%s\t%s", result.c_str(), state.c_str(), again.c_str());
    std::fflush(stdout);
}

/// Runs in a process of its own; `meanwhile` in this one.
template <class Work, class Meanwhile> std::string Apart(Work work, Meanwhile meanwhile) {
    std::fflush(stdout);
    const pid_t child = ::fork();
    if (child == 0) {
        work();
        ::_exit(0);
    }
    meanwhile(child);
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL ? "killed"
           : WIFEXITED(status) && WEXITSTATUS(status) == 0    ? "ended"
                                                              : "broke";
}

bool MakesCall(const fs::path& log, int call) {
    std::ifstream file(log);
    std::string line;
    int count = 0;
    while (std::getline(file, line)) {
        ++count;
    }
    return count >= call;
}

void Sweep(const std::string& style, const fs::path& base, std::size_t size, const std::vector<std::string>& actions) {
    Saver(style, base / "warm", size).Change(true); // what starts once shall not start in each process
    bool isThere = true;
    for (int call = 1; isThere; ++call) {
        isThere = false;
        for (const std::string& action : actions) {
            const fs::path folder = base / (std::to_string(call) + "-" + action);
            std::printf("%d\t%s", call, action.c_str());
            const std::string end = Apart([&] { SaveWithFault(style, folder, size, call, action); }, [](pid_t) {});
            std::printf("\t%s\n", end.c_str());
            isThere = MakesCall(folder.string() + ".log", call) || isThere;
        }
    }
}

void Kill(const std::string& style, const fs::path& base, std::size_t size, int rounds) {
    // Within the time of a few saves, whatever the disk makes of them.
    Saver warm(style, base / "warm", size);
    warm.Save();
    const auto start = std::chrono::steady_clock::now();
    warm.Save();
    const auto time = std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - start);
    std::mt19937 random(std::random_device{}());
    std::uniform_int_distribution<long> microseconds(0, std::max(5'000L, static_cast<long>(time.count()) * 5));
    for (int round = 0; round < rounds; ++round) {
        const fs::path folder = base / std::to_string(round);
        Saver saver(style, folder, size);
        int started[2] = {};
        if (::pipe2(started, O_CLOEXEC) != 0) {
            std::abort();
        }
        const auto save = [&] {
            for (bool changed = true; saver.Save() == "saved" && ::write(started[1], "", 1) == 1; changed = !changed) {
                saver.Change(changed);
            }
        };
        const std::string end = Apart(save, [&](pid_t child) {
            char byte = 0;
            ::close(started[1]);
            static_cast<void>(::read(started[0], &byte, 1) == 1);
            ::usleep(static_cast<useconds_t>(microseconds(random)));
            ::kill(child, SIGKILL);
        });
        ::close(started[0]);
        std::printf("%d\t%s\n", round, end.c_str());
    }
}

} // namespace

int main(int count, char** texts) {
    std::vector<std::string> arguments(texts + 1, texts + count);
    ::umask(0027);
    if (arguments.size() > 2) {
        arguments[2] = fs::weakly_canonical(arguments[2]).string();
    }
    if (arguments.size() > 4 && arguments[0] == "sweep") {
        Sweep(arguments[1], arguments[2], std::stoul(arguments[3]), {arguments.begin() + 4, arguments.end()});
    } else if (arguments.size() == 5 && arguments[0] == "kill") {
        Kill(arguments[1], arguments[2], std::stoul(arguments[3]), std::stoi(arguments[4]));
    } else {
        return 2;
    }
    return 0;
}
