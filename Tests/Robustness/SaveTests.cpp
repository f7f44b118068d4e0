// Saving under faults. One save for each call that it makes and each fault that may meet it, in a folder and a process
// of its own, up to the call that no save makes any more.

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Commands.h"
#include "Framework/XMLDataWrapper.h"

namespace Robustness {
namespace {

using namespace Framework;
namespace fs = std::filesystem;

constexpr const char* kLaneFile = "lane.xml";
constexpr uid_t kNobody = 65534;

/// The document before and after the one change that is saved; the two differ in length.
std::string LaneText(bool isChanged) {
    return "<Lane>\r\n  <Version>" + std::string(isChanged ? "two" : "1") + "</Version><!-- " + std::string(2000, '.') +
           " -->\r\n</Lane>\r\n";
}

/// What a folder holds after a save: "old", "new", "none" or "damaged" for the document, and " stray" when anything
/// stands beside it.
std::string StateOf(const fs::path& folder) {
    std::string state = "none";
    std::string stray;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().filename() != kLaneFile) {
            stray = " stray";
            continue;
        }
        const std::string text = ReadText(entry.path());
        state = text == LaneText(false) ? "old" : text == LaneText(true) ? "new" : "damaged";
    }
    return state + stray;
}

std::vector<std::vector<std::string>> WordsOf(const std::string& text) {
    std::vector<std::vector<std::string>> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        std::istringstream words(line);
        lines.emplace_back(std::istream_iterator<std::string>(words), std::istream_iterator<std::string>());
    }
    return lines;
}

/// One document on its way from the disk to the disk, changed in between. "replace" overwrites any file, "refuse" only
/// the one it loaded, "create" makes one where none is.
class Saver {
public:
    Saver(const std::string& style, const fs::path& folder)
        : m_path((folder / kLaneFile).string()), m_onlyKnown(style != "replace") {
        fs::create_directory(folder);
        if (style == "create") {
            EXPECT_TRUE(m_document.LoadXMLText(LaneText(false), false));
        } else {
            WriteText(m_path, LaneText(false));
            fs::permissions(m_path, fs::perms{0640});
            EXPECT_TRUE(::geteuid() != 0 || ::chown(m_path.c_str(), kNobody, kNobody) == 0);
            EXPECT_TRUE(m_document.LoadXMLFile(m_path.c_str(), false));
        }
        EXPECT_TRUE(m_document.SetQueryValue("Version", "two", false));
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

/// One save of the sweep.
struct Save {
    int call;
    std::string action;
    fs::path folder;
    bool killed = false;
    std::string result = {};                        ///< "saved" or "failed: ..."
    std::string state = {};                         ///< of the folder behind it, as StateOf says
    std::string again = {};                         ///< result of a second save without faults
    std::vector<std::vector<std::string>> log = {}; ///< name of the call, its files, result

    bool Saved() const { return result == "saved"; }
    /// The call that was swept; empty when the save did not come so far.
    std::string Swept() const {
        const auto index = static_cast<std::size_t>(call) - 1;
        return index < log.size() ? log[index][0] : "";
    }
    fs::path Beside(const char* ending) const { return folder.string() + ending; }

    void Run(const std::string& style);

private:
    void RunInChild(const std::string& style) const;
};

/// Leaves its results in files beside the folder.
void Save::RunInChild(const std::string& style) const {
    ::umask(0027);
    Saver saver(style, folder);
    const std::string lane = folder / kLaneFile;
    for (const auto& [name, value] : {std::pair<const char*, std::string>{"FAULT_LOG", Beside(".log")},
                                      {"FAULT_AT", std::to_string(call)},
                                      {"FAULT_ACTION", action},
                                      {"FAULT_MEDDLE", lane},
                                      {"FAULT_FOLDER", folder}}) {
        ::setenv(name, value.c_str(), 1);
    }
    const std::string first = saver.Save();
    ::unsetenv("FAULT_FOLDER");
    WriteText(Beside(".result"), first);
    WriteText(Beside(".state"), StateOf(folder));
    WriteText(Beside(".again"), saver.Save());
}

void Save::Run(const std::string& style) {
    const int status = RunApart([&] { RunInChild(style); });
    killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    EXPECT_TRUE(killed || status == 0) << style << ", " << action << " at call " << call << ": " << status;
    log = WordsOf(ReadText(Beside(".log")));
    state = StateOf(folder);
    if (!killed) {
        result = ReadText(Beside(".result"));
        state = ReadText(Beside(".state"));
        again = ReadText(Beside(".again"));
    }
}

/// Thousands of files are forced to the disk here, and faults are the same in memory.
fs::path QuickFolder() {
    const fs::path memory = "/dev/shm";
    return fs::canonical(::access(memory.c_str(), W_OK) == 0 ? memory : fs::path(testing::TempDir()));
}

const std::vector<std::string> kFaults = {"ENOSPC", "EIO",         "EIO-on",     "short",
                                          "EINTR",  "kill-before", "kill-after", "torn"};

std::vector<Save> Sweep(const TemporaryFolder& base, const std::string& style,
                        const std::vector<std::string>& actions = kFaults) {
    Saver(style, base / "first"); // what starts once shall not start in each process
    std::vector<Save> saves;
    bool isThere = true;
    for (int call = 1; isThere; ++call) {
        isThere = false;
        for (const std::string& action : actions) {
            Save& save = saves.emplace_back(Save{call, action, base / (style + std::to_string(call) + action)});
            save.Run(style);
            isThere = isThere || !save.Swept().empty();
        }
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
    if (!save.Saved() && (save.again != "saved" || StateOf(save.folder).rfind("new", 0) != 0)) {
        return "not saved again";
    }
    const bool isKept = (style == "replace" || style == "refuse") && ::geteuid() == 0;
    struct stat status = {};
    if (state == "new" && (::stat((save.folder / kLaneFile).c_str(), &status) != 0 ||
                           (status.st_mode & 07777U) != 0640U || status.st_uid != (isKept ? kNobody : ::geteuid()))) {
        return "owner or mode";
    }
    return "";
}

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

/// Before each call somebody else changes the file that was loaded, or makes one where none was.
TEST(SaveFaults, WhatOthersWriteIsNeverOverwritten) {
    const TemporaryFolder base(QuickFolder());
    for (const std::string style : {"refuse", "create"}) {
        const bool isNew = style == "create";
        const std::string theirs = isNew ? "X" : "X" + LaneText(false).substr(1);
        const char* const refusal = isNew ? "not saved: there is a file" : "not saved: the file has changed since";
        bool isRenamed = false;
        for (const Save& save : Sweep(base, style, {"meddle"})) {
            SCOPED_TRACE(testing::Message() << style << ", before call " << save.call << ": " << save.result);
            const bool isRename = save.Swept() == "rename"; // for a file that is there, the instant that is left
            if (!isRenamed && (isNew || !isRename)) {
                EXPECT_NE(save.result.find(refusal), std::string::npos);
                EXPECT_EQ(save.state, "damaged") << "by us, and nothing beside it";
                EXPECT_EQ(ReadText(save.folder / kLaneFile), theirs);
            } else {
                EXPECT_TRUE(save.Saved());
                const bool isSeenLater = isRenamed && !save.Swept().empty();
                EXPECT_EQ(save.again.find("has changed") != std::string::npos, isSeenLater) << save.again;
            }
            isRenamed = isRenamed || isRename;
        }
        EXPECT_TRUE(isRenamed);
    }
}

} // namespace
} // namespace Robustness
