// Saving that refuses to overwrite what others wrote, and what it has to know of files for that; files that cannot be
// written or read.

#include <functional>
#include <memory>
#include <thread>
#include <vector>

#include <FrameworkDataContainers/StateProcessingRootType.h>
#include <gtest/gtest.h>
#include <malloc.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Commands.h"
#include "Framework/XMLDataWrapper.h"
#include "Framework/XMLSupport/AtomicFile.h"
#include "Robustness/HostileWatch.h"

namespace Robustness {
namespace {

using namespace Framework;
namespace fs = std::filesystem;

constexpr const char* kOld = "<StateProcessingRoot Version='1'/>";
constexpr const char* kNew = "<StateProcessingRoot Version='2'/>";
constexpr const char* kTheirs = "<StateProcessingRoot Version='9'/>";

constexpr const char* kChanged = "not saved: the file has changed since it was loaded or last saved; load it again";
constexpr const char* kGone = "not saved: the file that was loaded or last saved is no longer there";
constexpr const char* kUnknown = "not saved: there is a file that was neither loaded nor saved from here";

/// Rights that root does not heed are tested as somebody else.
class AsNobody {
public:
    AsNobody() { Be(65534); }
    ~AsNobody() { Be(0); }

private:
    void Be(uid_t who) const {
        EXPECT_TRUE(!m_isRoot || ::seteuid(0) == 0);
        EXPECT_TRUE(!m_isRoot || (::setegid(who) == 0 && ::seteuid(who) == 0));
    }

    const bool m_isRoot = ::geteuid() == 0;
};

class SaveRefusal : public testing::Test {
protected:
    void SetUp() override { WriteText(m_path, kOld); }
    void TearDown() override { fs::permissions(m_folder.Path(), fs::perms{0755}); }

    void Load(XMLDataWrapper& wrapper) const {
        ASSERT_TRUE(wrapper.LoadXMLFile(m_path.c_str(), false)) << wrapper.GetLastError();
        ASSERT_TRUE(wrapper.SetQueryValue("@Version", "2", false));
    }

    /// Refused with the file's name and that reason, and nothing is changed or left beside the files there.
    void ExpectRefused(XMLDataWrapper& wrapper, const fs::path& path, const char* reason,
                       bool refuseChanged = true) const {
        const auto look = [&] {
            std::map<std::string, std::string> files;
            for (const auto& entry : fs::directory_iterator(m_path.parent_path())) {
                files[entry.path().filename()] = entry.is_regular_file() ? ReadText(entry.path()) : "";
            }
            return files;
        };
        const auto before = look();
        EXPECT_FALSE(wrapper.SaveXMLFile(path.c_str(), refuseChanged));
        EXPECT_EQ(wrapper.GetLastError().find(path.string() + ": " + reason), 0U) << wrapper.GetLastError();
        EXPECT_EQ(look(), before);
    }

    static void ExpectSaved(XMLDataWrapper& wrapper, const fs::path& path, bool refuseChanged = true) {
        EXPECT_TRUE(wrapper.SaveXMLFile(path.c_str(), refuseChanged)) << wrapper.GetLastError();
        EXPECT_EQ(ReadText(path), wrapper.GetXMLText());
    }

    const TemporaryFolder m_folder;
    const fs::path m_path = m_folder / "lane.xml";
};

TEST_F(SaveRefusal, WhateverOthersDoToTheFile) {
    struct Case {
        const char* what;
        std::function<void()> others;
        const char* reason;
    };
    const std::vector<Case> cases = {
        {"write over it", [&] { WriteText(m_path, kTheirs); }, kChanged},
        {"append", [&] { std::ofstream(m_path, std::ios::app) << "<!-- -->"; }, kChanged},
        {"write and set the time back",
         [&] {
             const auto time = fs::last_write_time(m_path);
             WriteText(m_path, kTheirs);
             fs::last_write_time(m_path, time);
         },
         kChanged},
        {"put another in its place",
         [&] {
             WriteText(m_folder / "other", kOld);
             fs::rename(m_folder / "other", m_path);
         },
         kChanged},
        {"change its mode", [&] { fs::permissions(m_path, fs::perms{0600}); }, kChanged},
        {"remove it", [&] { fs::remove(m_path); }, kGone},
        {"put a link to another in its place",
         [&] {
             WriteText(m_folder / "other", kOld);
             fs::remove(m_path);
             fs::create_symlink("other", m_path);
         },
         kUnknown},
    };
    for (const Case& each : cases) {
        for (const bool savedBefore : {false, true}) {
            SCOPED_TRACE(testing::Message() << each.what << (savedBefore ? " once it was saved" : ""));
            fs::remove(m_path);
            fs::remove(m_folder / "other");
            WriteText(m_path, kOld);
            XMLDataWrapper wrapper;
            Load(wrapper);
            if (savedBefore) {
                ExpectSaved(wrapper, m_path);
                ASSERT_TRUE(wrapper.SetQueryValue("@Version", "3", false));
            }
            each.others();
            ExpectRefused(wrapper, m_path, each.reason);
            ExpectRefused(wrapper, m_path, each.reason);
            // The changes are still there, can be saved without asking, and the file is known from then on.
            ExpectSaved(wrapper, m_path, false);
            ExpectSaved(wrapper, m_path);
        }
    }
}

TEST_F(SaveRefusal, OtherFilesAreSafeAndNewOnesAreMade) {
    const fs::path other = m_folder / "other.xml";
    WriteText(other, kTheirs);
    fs::create_directory(m_folder / "sub");
    fs::create_symlink("../lane.xml", m_folder / "sub" / "link");
    XMLDataWrapper wrapper;
    Load(wrapper);
    ExpectRefused(wrapper, other, kUnknown);
    ExpectSaved(wrapper, m_folder / "copy.xml");
    ExpectSaved(wrapper, m_folder / "copy.xml");
    ExpectSaved(wrapper, m_path); // what was loaded is still known
    ExpectSaved(wrapper, m_folder / "sub" / "link", false);
    EXPECT_TRUE(fs::is_symlink(m_folder / "sub" / "link"));
    ExpectSaved(wrapper, m_folder / "sub" / "link");
    ExpectSaved(wrapper, m_folder / "copy.xml");
    fs::remove(m_folder / "copy.xml");
    ExpectRefused(wrapper, m_folder / "copy.xml", kGone);

    // Without a file behind it a document knows none until it is saved.
    FullFunctionXMLDataWrapper output;
    ASSERT_TRUE(output.LoadXMLFile(m_path.c_str(), false) && output.CreateOutputDocument("StateProcessingRoot"));
    XMLDataWrapper text;
    ASSERT_TRUE(text.LoadXMLFile(m_path.c_str(), false) && text.LoadXMLText(kNew, false));
    for (XMLDataWrapper* const fresh : {static_cast<XMLDataWrapper*>(&output), &text}) {
        ExpectRefused(*fresh, m_path, kUnknown);
        fs::remove(other);
        ExpectSaved(*fresh, other);
        ExpectSaved(*fresh, other);
    }
    // A load that fails leaves the file known.
    WriteText(m_folder / "broken.xml", "<a>");
    EXPECT_FALSE(wrapper.LoadXMLFile((m_folder / "broken.xml").c_str(), false));
    ExpectSaved(wrapper, m_path);
}

TEST_F(SaveRefusal, ObjectsKnowTheFileOfTheirDocument) {
    StateProcessingRootType own(false);
    ASSERT_TRUE(own.LoadFromFile(nullptr, m_path.c_str(), false)) << own.GetLastError();
    ExpectSaved(*own.GetContainedDataPtr(), m_path);

    auto wrapper = std::make_unique<XMLDataWrapper>();
    Load(*wrapper);
    StateProcessingRootType left(false);
    StateProcessingRootType orphan(false);
    ASSERT_TRUE(left.LoadFromDataPacket(nullptr, wrapper.get(), false));
    ASSERT_TRUE(wrapper->LoadXMLText(kNew, false)); // the object goes on with the old document
    ExpectRefused(*wrapper, m_path, kUnknown);
    ExpectSaved(*left.GetContainedDataPtr(), m_path);
    ExpectRefused(*own.GetContainedDataPtr(), m_path, kChanged);

    ASSERT_TRUE(wrapper->LoadXMLFile(m_path.c_str(), false));
    ASSERT_TRUE(orphan.LoadFromDataPacket(nullptr, wrapper.get(), false));
    wrapper.reset();
    ExpectSaved(*orphan.GetContainedDataPtr(), m_path);
    ExpectRefused(*left.GetContainedDataPtr(), m_path, kChanged);
}

// The clock of a file system may stand still for longer than a change takes; this one may be too good to show it.
TEST_F(SaveRefusal, TellsContentsApartThatHaveOneStamp) {
    KnownFiles files;
    EXPECT_EQ(ReadFile(m_path, 1000, "", &files.loaded), kOld);
    EXPECT_EQ(files.loaded.content, KnownFile::HashOf(kOld)) << "the file is younger than the clock is fine";
    KnownFiles changed = files;
    changed.loaded.content = KnownFile::HashOf(kTheirs);
    EXPECT_THROW(SaveAtomically(m_path, kNew, Overwrite::OnlyKnown, changed), SaveError);
    EXPECT_EQ(ReadText(m_path), kOld);
    SaveAtomically(m_path, kNew, Overwrite::OnlyKnown, files);
    EXPECT_EQ(ReadText(m_path), kNew);
    EXPECT_EQ(files.loaded.content, KnownFile::HashOf(kNew));
    FileStamp old = files.loaded.stamp;
    old.changedSeconds -= 10;
    EXPECT_TRUE(files.loaded.stamp.IsFresh() && !old.IsFresh());
}

TEST_F(SaveRefusal, WhatIsNoRegularFile) {
    ASSERT_EQ(::mkfifo((m_folder / "pipe").c_str(), 0600), 0);
    fs::create_symlink("nowhere", m_folder / "dangling");
    constexpr const char* kNotRegular = "cannot save to what is no regular file";
    XMLDataWrapper wrapper;
    ASSERT_TRUE(wrapper.LoadXMLText(kNew, false));
    for (const auto& [path, reason] : {std::pair<fs::path, const char*>{m_folder / "pipe", kNotRegular},
                                       {m_folder.Path(), kNotRegular},
                                       {m_folder / "", kNotRegular},
                                       {m_folder / "missing/file", "cannot find its folder"},
                                       {m_path / "file", "cannot find its folder"},
                                       {"", "cannot find its folder"},
                                       {m_folder / "dangling", "the symbolic link leads to no file"}}) {
        ExpectRefused(wrapper, path, reason, false);
    }
}

TEST_F(SaveRefusal, WithoutTheRights) {
    fs::permissions(m_path, fs::perms{0666});
    XMLDataWrapper wrapper;
    ASSERT_TRUE(wrapper.LoadXMLText(kNew, false));
    const auto refuse = [&](unsigned rightsOfFolder, const char* name, const char* reason) {
        fs::permissions(m_folder.Path(), fs::perms(rightsOfFolder));
        const AsNobody nobody;
        ExpectRefused(wrapper, m_folder / name, reason, false);
    };
    refuse(0555, "lane.xml", "cannot create a temporary file in its folder");
    refuse(0555, "new", "cannot create a temporary file in its folder");
    if (::geteuid() == 0) { // only root has files of others
        refuse(0777, "lane.xml", "cannot keep its owner and group");
    }
}

TEST_F(SaveRefusal, NotForANameOfAnyLengthOrOneWithoutFolder) {
    SaveAtomically(m_folder / std::string(255, 'n'), kNew);
    const fs::path here = fs::current_path();
    fs::current_path(m_folder.Path());
    SaveAtomically("relative", kNew);
    fs::current_path(here);
    EXPECT_EQ(std::distance(fs::directory_iterator(m_folder.Path()), {}), 3);
}

TEST(ReadingFiles, TakesWhatAnotherThreadPipes) {
    const TemporaryFolder folder;
    const std::string large(500'000, 'x');
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::thread writer([&] { WriteText(pipe, large); });
    EXPECT_EQ(ReadFile(pipe, large.size()), large);
    writer.join();
}

TEST(ReadingFiles, TakesNoMoreMemoryThanTheCap) {
    const auto read = [] {
        constexpr std::size_t megabytes = 17; // no power of two, to which buffers grow
        ::mallopt(M_MMAP_THRESHOLD, 1 << 20); // what is given back is gone
        const double taken = MegabytesOf([] {
            try {
                ReadFile("/dev/zero", megabytes << 20U);
                ADD_FAILURE() << "read";
            } catch (const FileError& refused) {
                EXPECT_STREQ(refused.what(), "/dev/zero: the file is too large");
            }
        });
        EXPECT_TRUE(kSanitized || taken <= megabytes + 3) << taken;
        std::exit(HasFailure() ? 1 : 0);
    };
    testing::FLAGS_gtest_death_test_style = "threadsafe"; // in a process whose heap nobody has used before
    EXPECT_EXIT(read(), testing::ExitedWithCode(0), "");
    EXPECT_FALSE(ReadFile("/proc/self/status", 1000'000).empty()); // says that its size is 0
}

} // namespace
} // namespace Robustness
