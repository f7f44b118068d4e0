#pragma once

#include <stdexcept>
#include <string>

namespace Lanedoc {

/// What a script may branch on; the numbers are part of the tool's promise.
enum class ExitCode {
    Done = 0,
    AnswerIsNo = 1,
    WrongUse = 2,
    BadInput = 3,
    MergeRefused = 4,
    OutputFailed = 5,
    Bug = 70,
};

/// Ends a command. The text is what the person is told, whole lines without the last line end; empty when all is said.
class Failure : public std::runtime_error {
public:
    Failure(ExitCode code, const std::string& text) : std::runtime_error(text), m_code(code) {}
    ExitCode Code() const { return m_code; }

private:
    ExitCode m_code;
};

} // namespace Lanedoc
