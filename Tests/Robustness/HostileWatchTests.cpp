// What the tests of hostile documents rest on: that the watch sees what it should, that the documents are live, and
// that texts which are to collide do.

#include "Commands.h"
#include "Robustness/HostileDocuments.h"
#include "Robustness/HostileTexts.h"
#include "Robustness/HostileWatch.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>

#include <arpa/inet.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/PlatformUtils.hpp>

namespace Robustness {
namespace {

namespace fs = std::filesystem;

TEST(HostileWatch, SeesWhoeverReachesOut) {
    const Watched watched = RunWatched(10, [](Watch& watch) {
        std::ifstream file("/etc/passwd");
        std::string line;
        if (!std::getline(file, line)) {
            watch.Fail("the file was not opened");
        }
        ::close(static_cast<int>(::syscall(SYS_openat, AT_FDCWD, "/etc/group", O_RDONLY)));
        const int descriptor = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_port = htons(9);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        ::connect(descriptor, reinterpret_cast<sockaddr*>(&address), sizeof address);
        if (::fork() >= 0) {
            watch.Fail("a process was started");
        }
    });
    EXPECT_EQ(watched.failures, std::vector<std::string>());
    const std::set<std::string> reached(watched.reached.begin(), watched.reached.end());
    for (const char* const call :
         {"openat /etc/passwd", "openat /etc/group", "socket", "connect 127.0.0.1:9", "clone"}) {
        EXPECT_EQ(reached.count(call), 1U) << call;
    }
}

/// A parser with its settings as they come does what these documents ask for: they would hurt whoever follows them.
TEST(HostileWatch, DocumentsThatReachOutWouldDoSo) {
    const Framework::TemporaryFolder folder;
    for (const char* const name : {"canary.txt", "canary.xml"}) {
        std::ofstream(folder / name) << "<c>" << kCanary << "</c>";
    }
    std::ofstream(folder / "canary.dtd") << "<!ENTITY c '" << kCanary << "'>";
    std::size_t live = 0;
    for (const HostileDocument& document : DocumentsOf("Reaching", {folder.Path(), 9})) {
        const std::string text = document.text(0);
        const bool readsFile = text.find("canary.") != text.npos && text.find("http:") == text.npos;
        if (document.refusal.empty() || !readsFile) {
            continue;
        }
        const Watched watched = RunWatched(10, [&](Watch&) {
            xercesc::XMLPlatformUtils::Initialize();
            xercesc::XercesDOMParser parser;
            const std::string id = folder / "document.xml";
            const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()), text.size(),
                                                    id.c_str());
            parser.parse(source);
        });
        const auto opened = [&](const std::string& call) {
            return call.find((folder / "canary").string()) != call.npos;
        };
        live += std::any_of(watched.reached.begin(), watched.reached.end(), opened) ? 1 : 0;
    }
    EXPECT_GE(live, 6U);
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
    std::set<unsigned> hashes;
    for (const std::string& text : CollidingByFactor(20'000, 31)) {
        unsigned hash = 0;
        for (const char letter : text) {
            hash = hash * 31 + static_cast<unsigned char>(letter);
        }
        hashes.insert(hash);
    }
    EXPECT_EQ(hashes.size(), 1U);
}

} // namespace
} // namespace Robustness
