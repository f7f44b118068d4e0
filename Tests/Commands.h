#pragma once

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "Files.h"

namespace Framework {

/// A folder that lives as long as its test.
class TemporaryFolder {
public:
    explicit TemporaryFolder(const std::filesystem::path& parent = testing::TempDir()) {
        std::string name = (parent / "framework-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no temporary folder " + name);
        }
        m_path = name;
    }
    ~TemporaryFolder() { std::filesystem::remove_all(m_path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    std::filesystem::path operator/(const std::string& name) const { return m_path / name; }

private:
    std::filesystem::path m_path;
};

struct CommandResult {
    int exitCode = -1;
    std::string output; ///< of both streams
};

inline std::string Quoted(const std::filesystem::path& path) {
    return "'" + path.string() + "'";
}

inline CommandResult RunCommand(const std::string& command) {
    CommandResult result;
    std::FILE* pipe = ::popen((command + " 2>&1").c_str(), "r");
    if (pipe == nullptr) {
        return result;
    }
    std::array<char, 4096> buffer{};
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe)) {
        result.output.append(buffer.data(), count);
    }
    const int status = ::pclose(pipe);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return result;
}

/// Runs in a child process, which ends with 1 when a check fails there; how it ended, as waitpid tells.
inline int RunApart(const std::function<void()>& work) {
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        work();
        ::_exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return status;
}

} // namespace Framework
