// Saves for the tests of saving, which judge what it leaves.
//   SaveDriver STYLE FOLDER SIZE ACTION...
// One save for each call and action, each in a folder FOLDER/CALL-ACTION of its own, up to the call that no save makes.
// A line for each: call, action, result, state of the folder, result of a second save without faults, end; parted by
// tabs. Needs the fault shim preloaded.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Framework/XMLDataWrapper.h"
#include "SavedState.h"

namespace {

namespace fs = std::filesystem;
using namespace Robustness;

void Check(bool good) {
    if (!good) {
        std::abort();
    }
}

/// One document on its way from the disk to the disk, changed in between.
class Saver {
public:
    Saver(const std::string& style, const fs::path& folder, std::size_t size)
        : m_path((folder / kLaneFile).string()), m_onlyKnown(style != "replace") {
        fs::create_directories(folder);
        if (style == "create") {
            Check(m_document.LoadXMLText(LaneText(false, size), false));
        } else {
            std::ofstream(m_path, std::ios::binary) << LaneText(false, size);
            fs::permissions(m_path, fs::perms{0640});
            constexpr uid_t kNobody = 65534;
            Check(::geteuid() != 0 || ::chown(m_path.c_str(), kNobody, kNobody) == 0);
            Check(m_document.LoadXMLFile(m_path.c_str(), false));
        }
        Check(m_document.SetQueryValue("Version", "two", false));
    }

    std::string Save() {
        const bool isSaved = m_document.SaveXMLFile(m_path.c_str(), m_onlyKnown);
        return isSaved ? "saved" : "failed: " + m_document.GetLastError();
    }

private:
    std::string m_path;
    bool m_onlyKnown;
    XMLDataWrapper m_document;
};

void SaveWithFault(const std::string& style, const fs::path& folder, std::size_t size, int call,
                   const std::string& action) {
    Saver saver(style, folder, size);
    ::setenv("FAULT_LOG", (folder.string() + ".log").c_str(), 1);
    ::setenv("FAULT_AT", std::to_string(call).c_str(), 1);
    ::setenv("FAULT_ACTION", action.c_str(), 1);
    ::setenv("FAULT_MEDDLE", (folder / kLaneFile).c_str(), 1);
    ::setenv("FAULT_FOLDER", folder.c_str(), 1);
    const std::string result = saver.Save();
    ::unsetenv("FAULT_FOLDER");
    const std::string state = SavedState(folder, size);
    const std::string again = result == "saved" && action != "meddle" ? "-" : saver.Save();
    std::printf("\t%s\t%s\t%s", result.c_str(), state.c_str(), again.c_str());
    std::fflush(stdout);
}

/// Runs in a process of its own; how that ended.
template <class Work> const char* Apart(Work work) {
    std::fflush(stdout);
    const pid_t child = ::fork();
    if (child == 0) {
        work();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL ? "killed"
           : WIFEXITED(status) && WEXITSTATUS(status) == 0    ? "ended"
                                                              : "broke";
}

bool MakesCall(const fs::path& log, int call) {
    std::ifstream file(log);
    int count = 0;
    for (std::string line; std::getline(file, line);) {
        ++count;
    }
    return count >= call;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 5) {
        return 2;
    }
    const std::string style = arguments[1];
    const fs::path base = fs::weakly_canonical(arguments[2]);
    const std::size_t size = std::stoul(arguments[3]);
    ::umask(0027);
    Saver(style, base / "warm", size); // what starts once shall not start in each process
    bool isThere = true;
    for (int call = 1; isThere; ++call) {
        isThere = false;
        for (int at = 4; at < count; ++at) {
            const std::string action = arguments[at];
            const fs::path folder = base / (std::to_string(call) + "-" + action);
            std::printf("%d\t%s", call, action.c_str());
            std::printf("\t%s\n", Apart([&] { SaveWithFault(style, folder, size, call, action); }));
            isThere = MakesCall(folder.string() + ".log", call) || isThere;
        }
    }
    return 0;
}
