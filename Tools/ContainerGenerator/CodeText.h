#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Generator {

/// C++ text in the layout of the project's formatter, so that generated files pass the same check as the others.
class CodeText {
public:
    /// One line behind the present indentation; an empty one is left bare.
    void Line(const std::string& text = {});
    /// `head(arguments)tail`; arguments that do not fit continue below the first.
    void Call(const std::string& head, const std::vector<std::string>& arguments, const std::string& tail);
    /// A constructor's head with what it initialises, on the next line when both do not fit into one.
    void Initialized(const std::string& head, const std::string& initializer);
    /// Head of a constructor with one initializer, and the brace of its body.
    void Constructor(const std::string& head, const std::string& initializer);
    /// A statement that may be too long for its line.
    void Statement(const std::string& statement);
    /// A comment of whole lines, each behind `mark`.
    void Comment(const std::string& mark, const std::string& text);
    void Indent() { m_indent += kIndentWidth; }
    void Outdent() { m_indent -= kIndentWidth; }

    const std::string& Text() const { return m_text; }

private:
    static constexpr std::size_t kIndentWidth = 4;
    static constexpr std::size_t kColumnLimit = 120;

    std::string m_text;
    std::size_t m_indent = 0;
};

/// The text as a C++ string literal.
std::string Literal(std::string_view text);

/// Decimal digits as an expression of type int.
std::string IntLiteral(const std::string& digits);

/// First line of a generated C++ file; `origin` names what it was made from.
std::string GeneratedMark(const std::string& origin);

/// What every first line of a generated C++ file begins with.
inline constexpr std::string_view kGeneratedMark = "// Generated from ";

} // namespace Generator
