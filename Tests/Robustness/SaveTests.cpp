#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Commands.h"
#include "Robustness/Shim/SavedState.h"

namespace Robustness {
namespace {

using namespace Framework;
namespace fs = std::filesystem;

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) {
        parts.push_back(part);
    }
    return parts;
}

/// One save of the sweep.
struct Save {
    int call;
    std::string action;
    bool killed;
    std::string result; ///< "saved" or "failed: ..."
    std::string state;  ///< of the folder behind it, as SavedState says
    std::string again;  ///< result of a second save without faults
    fs::path folder;
    std::vector<std::vector<std::string>> log; ///< name of the call, its files, result

    bool Saved() const { return result == "saved"; }
    /// The call that was swept; empty when the save did not come so far.
    std::string Swept() const {
        const auto index = static_cast<std::size_t>(call) - 1;
        return index < log.size() ? log[index][0] : "";
    }
};

/// Thousands of files are forced to the disk here, and faults are the same in memory.
fs::path QuickFolder() {
    const fs::path memory = "/dev/shm";
    return ::access(memory.c_str(), W_OK) == 0 ? memory : fs::path(testing::TempDir());
}

constexpr std::size_t kSmall = 2000;
const std::vector<std::string> kFaults = {"ENOSPC", "EIO",         "EIO-on",     "short",
                                          "EINTR",  "kill-before", "kill-after", "torn"};

std::vector<Save> Sweep(const TemporaryFolder& base, const std::string& style,
                        const std::vector<std::string>& actions = kFaults) {
    // The shim stands before the run-time library of a sanitizer, whose checks of the calls it answers are missing.
    std::string command = "ASAN_OPTIONS=\"$ASAN_OPTIONS:verify_asan_link_order=0\" LD_PRELOAD='" FRAMEWORK_FAULT_SHIM
                          "' '" FRAMEWORK_SAVE_DRIVER "' " +
                          style + " " + Quoted(base / style) + " " + std::to_string(kSmall);
    for (const std::string& action : actions) {
        command += " " + action;
    }
    const CommandResult driven = RunCommand(command);
    EXPECT_EQ(driven.exitCode, 0) << driven.output;
    std::vector<Save> saves;
    for (const std::string& text : Split(driven.output, '\n')) {
        const std::vector<std::string> line = Split(text, '\t');
        if (line.size() != 3 && line.size() != 6) {
            ADD_FAILURE() << style << ": " << testing::PrintToString(line);
            continue;
        }
        Save save{std::stoi(line[0]), line[1], line.back() == "killed", {}, {}, {}, {}, {}};
        save.folder = base / style / (line[0] + "-" + line[1]);
        if (line.size() == 6) {
            save.result = line[2];
            save.state = line[3];
            save.again = line[4];
        } else {
            save.state = SavedState(save.folder, kSmall);
        }
        EXPECT_EQ(line.back(), line.size() == 6 ? "ended" : "killed") << testing::PrintToString(line);
        for (const std::string& call : Split(ReadText(save.folder.string() + ".log"), '\n')) {
            save.log.push_back(Split(call, ' '));
        }
        saves.push_back(std::move(save));
    }
    return saves;
}

/// Whether a power cut behind the save would have left the new file: all that was written was forced to the disk and
/// closed at the first try, before it took its name; and its folder afterwards.
bool IsForced(const Save& save) {
    std::set<std::string> written;
    std::set<std::string> unforced;
    std::set<std::string> lost;
    bool folderForced = true;
    for (const auto& line : save.log) {
        const std::string& name = line[0];
        const std::string& file = line[1];
        const bool good = line.back() != "-1" && line.back() != "killed";
        if (name == "write") {
            written.insert(file);
            unforced.insert(file);
        } else if ((name == "fsync" || (name == "close" && written.contains(file))) && !good) {
            lost.insert(file);
        } else if (name == "fsync" && file == ".") {
            folderForced = true;
        } else if (name == "fsync") {
            unforced.erase(file);
        } else if (name == "rename" && good) {
            if (unforced.contains(file)) {
                return false;
            }
            folderForced = false;
        }
    }
    lost.erase("."); // tried again or not, a folder shows by its last result
    return unforced.empty() && lost.empty() && folderForced;
}

/// What is wrong with the save, in a word; nothing when all is as promised.
std::string Violation(const Save& save, const std::string& style) {
    const std::string old = style == "create" ? "none" : "old";
    const bool inPlace = save.result.find("the new file is in place") != std::string::npos;
    const bool strayAllowed = save.killed || std::any_of(save.log.begin(), save.log.end(), [](const auto& line) {
                                  return line[0] == "unlink" && line.back() == "-1";
                              });
    const std::string state = save.state.substr(0, save.state.find(' '));
    if (state != old && state != "new") {
        return "damaged";
    }
    if (state != save.state && !strayAllowed) {
        return "stray";
    }
    if (save.killed) {
        return "";
    }
    if (save.Saved() || inPlace ? state != "new" : state != old) {
        return save.Saved() ? "saved but old" : "failed but new";
    }
    if (save.Saved() && !IsForced(save)) {
        return "not forced";
    }
    if (!save.Saved() && (save.again != "saved" || SavedState(save.folder, kSmall).rfind("new", 0) != 0)) {
        return "not saved again";
    }
    const bool isKept = (style == "replace" || style == "refuse") && ::geteuid() == 0;
    struct stat status = {};
    if (state == "new" && (::stat((save.folder / kLaneFile).c_str(), &status) != 0 ||
                           (status.st_mode & 07777U) != 0640U || status.st_uid != (isKept ? 65534U : ::geteuid()))) {
        return "owner or mode";
    }
    return "";
}

// "replace" overwrites any file, "refuse" only the one it loaded, "create" makes one where none is.
TEST(SaveFaults, EveryFaultAtEveryCallLeavesTheOldOrTheNewFile) {
    const TemporaryFolder base(QuickFolder());
    for (const std::string style : {"refuse", "create", "replace"}) {
        const std::vector<Save> saves = Sweep(base, style);
        ASSERT_GE(saves.size(), 8 * kFaults.size()) << style << ": the shim does not see the calls";
        std::map<std::string, int> ends;
        for (const Save& save : saves) {
            EXPECT_EQ(Violation(save, style), "")
                << style << ", " << save.action << " at call " << save.call << ": " << save.result << ", " << save.state
                << ", again " << save.again << "\n"
                << testing::PrintToString(save.log);
            ++ends[save.killed ? "killed" : save.Saved() ? "saved" : "failed"];
        }
        // Every way to end was there, and the last call that is swept is one that no save makes any more.
        EXPECT_EQ(ends.size(), 3U);
        EXPECT_TRUE(saves.back().Saved() && !saves.back().killed);
    }
}

TEST(SaveFaults, AFileSystemWithoutRenamesThatReplaceNothingWillDo) {
    const TemporaryFolder base(QuickFolder());
    int renames = 0;
    for (const Save& save : Sweep(base, "create", {"EINVAL"})) {
        EXPECT_EQ(Violation(save, "create"), "") << save.call << ": " << save.result;
        if (save.Swept() == "rename") {
            EXPECT_EQ(save.Saved(), ++renames == 1) << "the second one is the plain rename";
        }
    }
    EXPECT_GE(renames, 1);
}

TEST(SaveFaults, AChangeIsNoticedUntilTheRename) {
    const TemporaryFolder base(QuickFolder());
    const std::string changed = "X" + LaneText(false, kSmall).substr(1);
    bool isRenamed = false;
    for (const Save& save : Sweep(base, "refuse", {"meddle"})) {
        SCOPED_TRACE(testing::Message() << "before call " << save.call << ": " << save.result);
        const std::string text = ReadText(save.folder / kLaneFile);
        if (save.Swept() == "rename") {
            isRenamed = true; // the instant that is left
            EXPECT_EQ(save.result + save.again, "savedsaved");
        } else if (!isRenamed) {
            EXPECT_NE(save.result.find("not saved: the file has changed since"), std::string::npos);
            EXPECT_EQ(text, changed);
            EXPECT_EQ(save.state, "damaged") << "by us, and nothing beside it";
        } else if (!save.Swept().empty()) {
            EXPECT_TRUE(save.Saved() && save.again.find("has changed") != std::string::npos) << save.again;
            EXPECT_EQ(text, "X" + LaneText(true, kSmall).substr(1));
        }
    }
    EXPECT_TRUE(isRenamed);
}

TEST(SaveFaults, AFileThatAppearsIsNeverOverwritten) {
    const TemporaryFolder base(QuickFolder());
    bool isRenamed = false;
    for (const Save& save : Sweep(base, "create", {"meddle"})) {
        SCOPED_TRACE(testing::Message() << "before call " << save.call << ": " << save.result);
        if (!isRenamed) { // not even in the last instant
            EXPECT_NE(save.result.find("not saved: there is a file"), std::string::npos);
            EXPECT_EQ(ReadText(save.folder / kLaneFile), "X");
            EXPECT_EQ(save.state, "damaged") << "by us, and nothing beside it";
        } else {
            EXPECT_TRUE(save.Saved());
        }
        isRenamed = isRenamed || save.Swept() == "rename";
    }
    EXPECT_TRUE(isRenamed);
}

} // namespace
} // namespace Robustness
