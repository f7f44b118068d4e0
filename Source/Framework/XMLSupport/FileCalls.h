#pragma once

#include <cerrno>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include <unistd.h>

namespace Framework {

/// Throws an Error that names the file, the step and what the system says.
template <class Error> [[noreturn]] void Fail(const std::string& path, const std::string& step, int number) {
    // Not strerror: other threads may call it too.
    throw Error(path + ": " + step + ": " + std::generic_category().message(number));
}

/// A file descriptor; closed at the end of the block, where nobody asks for the result any more.
class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Number() const { return m_number; }
    bool IsOpen() const { return m_number >= 0; }
    /// 0 or the error. Closing is never tried twice: the number may belong to another file by then.
    int Close() {
        const int number = std::exchange(m_number, -1);
        return number < 0 || ::close(number) == 0 ? 0 : errno;
    }

private:
    int m_number;
};

template <class Call> auto Retrying(Call call) {
    decltype(call()) result;
    do {
        result = call();
    } while (result == -1 && errno == EINTR);
    return result;
}

/// Without links, absolute; empty, with the reason in errno, when there is no such file.
std::string RealPath(const std::string& path);

/// All that is left to read; nothing when that is more than `cap` bytes. Throws FileError.
std::optional<std::string> ReadAll(const Descriptor& file, std::size_t expected, std::size_t cap,
                                   const std::string& path);

} // namespace Framework
