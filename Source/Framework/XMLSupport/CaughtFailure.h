#pragma once

#include <exception>

namespace Framework {

/// What was thrown, in words for an error text. To be made in a handler; nothing here allocates or throws, so that
/// reporting a failure cannot fail.
///
/// Not everything that is thrown is a std::exception: Xerces' DOMException, XMLException and OutOfMemoryException and
/// Xalan's exceptions are not, and a host's own code may throw anything.
class CaughtFailure {
public:
    CaughtFailure() noexcept;

    /// Lives as long as this object; for ever when it is a literal.
    const char* Text() const noexcept { return m_text; }
    bool IsLiteral() const noexcept { return m_exception == nullptr; }

private:
    std::exception_ptr m_exception; // whose text it is
    const char* m_text = "an exception of unknown kind";
};

} // namespace Framework
