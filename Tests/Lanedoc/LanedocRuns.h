#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>
#include <sys/wait.h>

/// Runs the tool in a folder of its own, by shell, so that cases can redirect as people do.
class LanedocRuns : public testing::Test {
protected:
    struct Result {
        int code;
        std::string out;
        std::string errors;
    };

    void SetUp() override {
        std::string name = testing::TempDir() + "lanedoc-XXXXXX";
        ASSERT_NE(::mkdtemp(name.data()), nullptr);
        m_folder = name;
        std::filesystem::current_path(m_folder);
        std::filesystem::create_symlink(FRAMEWORK_EXAMPLES, "examples");
    }

    void TearDown() override {
        std::filesystem::current_path(m_folder.parent_path());
        std::filesystem::remove_all(m_folder);
    }

    /// `arguments` in the shell's words; redirections of their own win.
    static Result Run(const std::string& arguments) {
        const std::string command = "{ '" FRAMEWORK_LANEDOC "' " + arguments + "; } >out.txt 2>errors.txt </dev/null";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Get("out.txt"), Get("errors.txt")};
    }

    static void Put(const std::string& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

    static std::string Get(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    static bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

private:
    std::filesystem::path m_folder;
};
