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

    struct stat Status(const std::string& name) const {
        struct stat status = {};
        EXPECT_EQ(::stat(Path(name).c_str(), &status), 0);
        return status;
    }

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

TEST_F(AtomicFile, FollowsLinksAndRefusesDanglingOnes) {
    fs::create_directory(m_folder / "sub");
    fs::create_symlink("../old", m_folder / "sub" / "link");
    SaveAtomically(Path("sub/link"), "through");
    EXPECT_TRUE(fs::is_symlink(m_folder / "sub" / "link"));
    EXPECT_EQ(ReadFile(Path("old"), kCap), "through");

    SaveAtomically(Path("old"), "old");
    fs::create_symlink("nowhere", m_folder / "dangling");
    ExpectRefused(Path("dangling"), "symbolic link");
}

TEST_F(AtomicFile, RefusesWhatIsNoRegularFile) {
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    ExpectRefused(Path("pipe"), "regular file");
    ExpectRefused(m_folder.string(), "regular file");
    ExpectRefused("/dev/null", "regular file");
    ExpectRefused(Path("missing/file"), "folder");
    ExpectRefused(Path("old/file"), "folder");
    ExpectRefused(Path(""), "regular file");
    ExpectRefused("", "folder");
}

TEST_F(AtomicFile, AFolderThatCannotBeWrittenLeavesTheOldFile) {
    fs::permissions(m_folder, fs::perms{0555});
    fs::permissions(m_folder / "old", fs::perms{0666});
    const AsNobody nobody;
    ExpectRefused(Path("old"), "temporary file");
    ExpectRefused(Path("new"), "temporary file");
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

TEST_F(AtomicFile, KeepsTheOwnerOrRefuses) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only root has files of others";
    }
    fs::permissions(m_folder / "old", fs::perms{0666});
    fs::permissions(m_folder, fs::perms{0777});
    const AsNobody nobody;
    ExpectRefused(Path("old"), "owner");
}

} // namespace
} // namespace Framework
