// What the tests of hostile documents rest on: that the watch sees what it should, and that texts which are to collide
// do.

#include "Robustness/HostileTexts.h"
#include "Robustness/HostileWatch.h"

#include <fstream>
#include <set>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Robustness {
namespace {

TEST(HostileWatch, SeesWhoeverReachesOut) {
    const Watched watched = RunWatched(10, [](Watch& watch) {
        std::ifstream file("/etc/passwd");
        std::string line;
        if (!std::getline(file, line)) {
            watch.Fail("the file was not opened");
        }
        ::close(static_cast<int>(::syscall(SYS_openat, AT_FDCWD, "/etc/group", O_RDONLY)));
        if (::socket(AF_INET, SOCK_STREAM, 0) >= 0) {
            watch.Fail("a socket was made");
        }
        if (::fork() >= 0) {
            watch.Fail("a process was started");
        }
    });
    EXPECT_EQ(watched.failures, std::vector<std::string>());
    const std::set<std::string> reached(watched.reached.begin(), watched.reached.end());
    for (const std::string& call : {std::string("openat /etc/passwd"), std::string("openat /etc/group"),
                                    "system call " + std::to_string(SYS_socket)}) {
        EXPECT_EQ(reached.count(call), 1U) << call;
    }
}

TEST(HostileTexts, CollideWhateverTheHashStartsFrom) {
    for (const std::string prefix : {"", "148:"}) {
        std::set<std::size_t> hashes;
        const std::vector<std::string> texts = CollidingByStandardHash(20'000, prefix);
        for (const std::string& text : texts) {
            hashes.insert(std::hash<std::string>()(prefix + text));
        }
        EXPECT_EQ(std::set<std::string>(texts.begin(), texts.end()).size(), texts.size());
#ifdef __GLIBCXX__
        EXPECT_EQ(hashes.size(), 1U) << prefix;
#endif
    }
}

} // namespace
} // namespace Robustness
