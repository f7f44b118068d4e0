#include "Framework/XMLSupport/AtomicFile.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

#include "Commands.h"
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Framework {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kCap = std::size_t{1} << 20U;
constexpr uid_t kNobody = 65534;

/// Rights that root does not heed are tested as somebody else.
class AsNobody {
public:
    AsNobody() : m_root(::geteuid() == 0) {
        if (m_root) {
            EXPECT_EQ(::setegid(kNobody), 0);
            EXPECT_EQ(::seteuid(kNobody), 0);
        }
    }
    ~AsNobody() {
        if (m_root) {
            EXPECT_EQ(::seteuid(0), 0);
            EXPECT_EQ(::setegid(0), 0);
        }
    }

private:
    bool m_root;
};

class AtomicFile : public testing::Test {
protected:
    void SetUp() override {
        fs::permissions(m_folder, fs::perms{0755});
        std::ofstream(Path("old")) << "old";
    }
    void TearDown() override { fs::permissions(m_folder, fs::perms{0755}); }

    std::string Path(const std::string& name) const { return (m_folder / name).string(); }

    /// Saving fails, says `expected`, and everything is as it was.
    void ExpectRefused(const std::string& path, const std::string& expected) {
        const auto before = Names();
        try {
            SaveAtomically(path, "new");
            ADD_FAILURE() << "saved " << path;
        } catch (const SaveError& error) {
            EXPECT_EQ(std::string(error.what()).rfind(path + ": ", 0), 0U) << error.what();
            EXPECT_NE(std::string(error.what()).find(expected), std::string::npos) << error.what();
        }
        EXPECT_EQ(Names(), before);
        EXPECT_EQ(ReadFile(Path("old"), kCap), "old");
    }

    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(m_folder)) {
            names.push_back(entry.path().filename());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    const TemporaryFolder m_own;
    const fs::path m_folder = m_own.Path();
};

TEST_F(AtomicFile, RefusesWhatIsNoRegularFile) {
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    fs::create_symlink("nowhere", m_folder / "dangling");
    const std::pair<std::string, const char*> cases[] = {
        {Path("pipe"), "regular file"},      {m_folder.string(), "regular file"},
        {"/dev/null", "regular file"},       {Path("missing/file"), "folder"},
        {Path("old/file"), "folder"},        {Path(""), "regular file"},
        {Path("dangling"), "symbolic link"}, {"", "folder"},
    };
    for (const auto& [path, expected] : cases) {
        ExpectRefused(path, expected);
    }
}

TEST_F(AtomicFile, ReadsWhatAnotherThreadPipes) {
    const std::string large(500'000, 'x');
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    std::thread writer([&] { std::ofstream(Path("pipe")) << large; });
    EXPECT_EQ(ReadFile(Path("pipe"), large.size()), large);
    writer.join();
}

TEST_F(AtomicFile, TakesANameOfAnyLengthAndOneWithoutFolder) {
    SaveAtomically(Path(std::string(255, 'n')), "text");
    const fs::path here = fs::current_path();
    fs::current_path(m_folder);
    SaveAtomically("relative", "text");
    fs::current_path(here);
    EXPECT_EQ(Names().size(), 3U);
}

TEST_F(AtomicFile, RightsThatAreMissingLeaveTheOldFile) {
    fs::permissions(m_folder / "old", fs::perms{0666});
    const auto refuse = [&](unsigned rightsOfFolder, const char* name, const char* expected) {
        fs::permissions(m_folder, fs::perms(rightsOfFolder));
        const AsNobody nobody;
        ExpectRefused(Path(name), expected);
    };
    refuse(0555, "old", "temporary file");
    refuse(0555, "new", "temporary file");
    if (::geteuid() == 0) { // only root has files of others
        refuse(0777, "old", "owner");
    }
}

} // namespace
} // namespace Framework
