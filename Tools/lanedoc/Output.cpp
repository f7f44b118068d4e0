#include "Output.h"

#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "Failure.h"

namespace Lanedoc {

namespace {

Style StyleOf(int descriptor, ColorMode mode) {
    if (mode != ColorMode::Auto) {
        return Style(mode == ColorMode::Always);
    }
    const auto variable = [](const char* name) {
        const char* const value = std::getenv(name);
        return std::string_view(value == nullptr ? "" : value);
    };
    const bool isForced = !variable("CLICOLOR_FORCE").empty() && variable("CLICOLOR_FORCE") != "0";
    const bool isTerminal = variable("TERM") != "dumb" && ::isatty(descriptor) == 1;
    return Style(variable("NO_COLOR").empty() && (isForced || isTerminal));
}

/// 0, or the error that ended the writing.
int WriteAll(int descriptor, std::string_view data) {
    while (!data.empty()) {
        const ssize_t written = ::write(descriptor, data.data(), data.size());
        if (written < 0 && errno != EINTR) {
            return errno;
        }
        if (written > 0) {
            data.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    return 0;
}

[[noreturn]] void FailOutput(int error, const std::string& what) {
    throw Failure(ExitCode::OutputFailed, what + ": " + std::generic_category().message(error));
}

[[noreturn]] void FailFile(int error, const std::string& path) {
    FailOutput(error, Printable(path) + ": error: cannot write");
}

constexpr const char* standardOutputFails = "lanedoc: error: cannot write to standard output";

bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// How a character that must not reach a terminal is shown; empty for all others.
std::string Escape(unsigned char byte) {
    switch (byte) {
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        break;
    }
    if (byte >= 0x20 && byte != 0x7F) {
        return {};
    }
    constexpr std::string_view digits = "0123456789ABCDEF";
    return std::string("\\x") + digits[byte >> 4U] + digits[byte & 0xFU];
}

} // namespace

std::string Style::Paint(std::string_view code, std::string_view text) const {
    if (!m_colored || text.empty()) {
        return std::string(text);
    }
    std::string painted = "\x1b[";
    return painted.append(code).append("m").append(text).append("\x1b[0m");
}

Style StyleOfOutput(ColorMode mode) {
    return StyleOf(STDOUT_FILENO, mode);
}

Style StyleOfErrors(ColorMode mode) {
    return StyleOf(STDERR_FILENO, mode);
}

void WriteOutput(std::string_view data) {
    if (const int error = WriteAll(STDOUT_FILENO, data); error != 0) {
        FailOutput(error, standardOutputFails);
    }
}

OutputFile::OutputFile(std::string path, Kind kind) : m_path(std::move(path)) {
    const int flags = kind == Kind::Device ? 0 : O_CREAT | O_TRUNC;
    constexpr mode_t forAll = 0666;
    m_descriptor = ::open(m_path.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY | flags, forAll);
    if (m_descriptor < 0) {
        FailFile(errno, m_path);
    }
}

OutputFile::~OutputFile() {
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

void OutputFile::Write(std::string_view data) {
    if (const int error = WriteAll(m_descriptor, data); error != 0) {
        FailFile(error, m_path);
    }
}

void OutputFile::Close() {
    if (::close(std::exchange(m_descriptor, -1)) != 0 && errno != EINTR) {
        FailFile(errno, m_path);
    }
}

void CloseOutput() {
    if (::close(STDOUT_FILENO) != 0 && errno != EINTR) {
        FailOutput(errno, standardOutputFails);
    }
}

void Say(std::string_view line) {
    // Nobody is left to tell when this fails, and the exit code says the rest.
    static_cast<void>(WriteAll(STDERR_FILENO, std::string(line) + '\n'));
}

std::string Printable(std::string_view text) {
    std::string shown;
    shown.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        // U+0080 to U+009F, which some terminals obey like escape sequences
        if (byte == 0xC2 && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xA0) {
            shown += "\xEF\xBF\xBD";
            ++i;
            continue;
        }
        const std::string escape = Escape(byte);
        shown += escape.empty() ? std::string(1, text[i]) : escape;
    }
    return shown;
}

std::string Quoted(std::string_view text, std::size_t limit) {
    std::string_view kept = text;
    if (limit > 0) {
        std::size_t characters = 0;
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (!IsContinuation(text[i]) && ++characters > limit) {
                kept = text.substr(0, i);
                break;
            }
        }
    }
    std::string quoted = "\"";
    for (const char character : Printable(kept)) {
        if (character == '"') {
            quoted += '\\';
        }
        quoted += character;
    }
    return quoted + (kept.size() < text.size() ? "…\"" : "\"");
}

std::size_t Width(std::string_view text) {
    std::size_t width = 0;
    for (const char byte : text) {
        width += IsContinuation(byte) ? 0U : 1U;
    }
    return width;
}

} // namespace Lanedoc
