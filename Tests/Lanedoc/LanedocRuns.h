#pragma once

#include <regex>
#include <vector>

#include "Commands.h"

/// Runs the tool in a folder of its own, by shell, so that cases can redirect as people do.
class LanedocRuns : public testing::Test {
protected:
    struct Result {
        int code;
        std::string out;
        std::string errors;
    };

    void SetUp() override {
        std::filesystem::current_path(m_folder.Path());
        std::filesystem::create_symlink(FRAMEWORK_EXAMPLES, "examples");
    }

    void TearDown() override { std::filesystem::current_path(m_folder.Path().parent_path()); }

    /// `arguments` in the shell's words; redirections of their own win.
    static Result Run(const std::string& arguments) {
        const std::string command = "{ '" FRAMEWORK_LANEDOC "' " + arguments + "; } >out.txt 2>errors.txt </dev/null";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Get("out.txt"), Get("errors.txt")};
    }

    /// What a command is answered with: its exit code, and a part of what stands on standard error.
    struct Answer {
        const char* arguments;
        int code;
        const char* said;
    };

    /// Data is on standard output exactly when it went well, and a word on standard error exactly when there is one.
    static void ExpectAnswers(const std::string& command, const std::vector<Answer>& answers) {
        for (const auto& [arguments, code, said] : answers) {
            SCOPED_TRACE(command + arguments);
            const Result result = Run(command + arguments);
            EXPECT_EQ(result.code, code);
            EXPECT_TRUE(Holds(result.errors, said)) << result.errors;
            EXPECT_EQ(result.out.empty(), code != 0) << result.out;
            EXPECT_EQ(result.errors.empty(), *said == '\0') << result.errors;
            EXPECT_FALSE(Holds(result.out + result.errors, "\x1b")) << "colours in a pipe";
        }
    }

    static void Put(const std::string& path, const std::string& text) { Framework::WriteText(path, text); }

    /// Empty when there is none.
    static std::string Get(const std::string& path) {
        return std::filesystem::exists(path) ? Framework::ReadText(path) : std::string();
    }

    static bool Holds(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

    /// Messages without the lines that they quote.
    static std::string WithoutExcerpts(const std::string& messages) {
        return std::regex_replace(messages, std::regex("(^|\n) +[0-9]* \\| [^\n]*(?=\n)"), "");
    }

private:
    const Framework::TemporaryFolder m_folder;
};
