#include "Robustness/HostileWatch.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <malloc.h>

namespace Robustness {

namespace {

double PeakMegabytes() {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word && word != "VmHWM:") {
    }
    double kilobytes = 0;
    EXPECT_TRUE(status >> kilobytes);
    return kilobytes / 1024;
}

} // namespace

double MegabytesOf(const std::function<void()>& work) {
    ::malloc_trim(0);
    EXPECT_TRUE(std::ofstream("/proc/self/clear_refs") << 5 << std::flush) << "the peak cannot be set back";
    const double before = PeakMegabytes();
    work();
    return PeakMegabytes() - before;
}

std::vector<std::string> ReachedBy(const std::string& log, const std::function<void()>& work) {
    ::setenv("FAULT_LOG", log.c_str(), 1);
    ::setenv("FAULT_FOLDER", "*", 1);
    work();
    ::unsetenv("FAULT_FOLDER");
    std::vector<std::string> reached;
    std::ifstream lines(log);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("open ") || line.starts_with("socket ")) {
            const std::size_t name = line.find(' ') + 1;
            reached.push_back(line.substr(name, line.rfind(' ') - name));
        }
    }
    std::filesystem::remove(log);
    return reached;
}

ProcessLimits::ProcessLimits() {
    ::getrlimit(RLIMIT_AS, &m_memory);
    ::getrlimit(RLIMIT_CPU, &m_time);
    if (!kSanitized) {
        const rlimit memory{rlim_t{8} << 30U, m_memory.rlim_max};
        ::setrlimit(RLIMIT_AS, &memory);
    }
}

ProcessLimits::~ProcessLimits() {
    ::setrlimit(RLIMIT_AS, &m_memory);
    ::setrlimit(RLIMIT_CPU, &m_time);
}

void ProcessLimits::GiveSeconds(rlim_t seconds) const {
    rusage used{};
    ::getrusage(RUSAGE_SELF, &used);
    const rlimit time{static_cast<rlim_t>(used.ru_utime.tv_sec + used.ru_stime.tv_sec) + seconds, m_time.rlim_max};
    ::setrlimit(RLIMIT_CPU, &time);
}

} // namespace Robustness
