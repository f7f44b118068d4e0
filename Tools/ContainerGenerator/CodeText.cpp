#include "CodeText.h"

#include <limits>
#include <sstream>

namespace Generator {

void CodeText::Line(const std::string& text) {
    if (!text.empty()) {
        m_text.append(m_indent, ' ');
        m_text += text;
    }
    m_text += '\n';
}

void CodeText::Call(const std::string& head, const std::vector<std::string>& arguments, const std::string& tail) {
    std::vector<std::string> pieces = {arguments.empty() ? ")" + tail : std::string()};
    if (!arguments.empty()) {
        pieces = arguments;
        for (std::string& piece : pieces) {
            piece += &piece == &pieces.back() ? ")" + tail : ",";
        }
    }
    // Where not even the first argument fits, the result type gets a line of its own.
    std::string line = head + "(" + pieces.front();
    const std::size_t name = head.rfind(' ');
    if (m_indent + line.size() > kColumnLimit && name != std::string::npos) {
        Line(head.substr(0, name));
        line.erase(0, name + 1);
    }
    const std::size_t continuation = line.size() - pieces.front().size();
    for (std::size_t position = 1; position < pieces.size(); ++position) {
        if (m_indent + line.size() + 1 + pieces[position].size() > kColumnLimit) {
            Line(line);
            line = std::string(continuation, ' ') + pieces[position];
        } else {
            line += " " + pieces[position];
        }
    }
    Line(line);
}

void CodeText::Constructor(const std::string& head, const std::string& initializer) {
    const std::string line = head + " : " + initializer + " {";
    if (m_indent + line.size() <= kColumnLimit) {
        Line(line);
        return;
    }
    Line(head);
    Indent();
    Line(": " + initializer + " {");
    Outdent();
}

void CodeText::Statement(const std::string& statement) {
    const std::size_t open = statement.find('(');
    if (m_indent + statement.size() <= kColumnLimit || open == std::string::npos) {
        Line(statement);
        return;
    }
    Line(statement.substr(0, open + 1));
    Indent();
    Line(statement.substr(open + 1));
    Outdent();
}

void CodeText::Comment(const std::string& mark, const std::string& text) {
    std::istringstream words(text);
    std::string line = mark;
    std::string word;
    while (words >> word) {
        if (line.size() > mark.size() && m_indent + line.size() + 1 + word.size() > kColumnLimit) {
            Line(line);
            line = mark;
        }
        line += " " + word;
    }
    if (line.size() > mark.size()) {
        Line(line);
    }
}

std::string Literal(std::string_view text) {
    static constexpr std::string_view kHexDigits = "0123456789abcdef";
    std::string literal = "\"";
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        if (character == '"' || character == '\\') {
            literal += '\\';
            literal += character;
        } else if (code < 0x20 || code == 0x7f) {
            // A hexadecimal escape would swallow digits that follow it; the split literal ends it.
            literal += "\\x";
            literal += kHexDigits[code >> 4U];
            literal += kHexDigits[code & 0xfU];
            literal += "\" \"";
        } else {
            literal += character;
        }
    }
    return literal + "\"";
}

std::string IntLiteral(const std::string& digits) {
    // The smallest int has no literal: its digits without the sign are one too many.
    const std::string smallest = std::to_string(std::numeric_limits<int>::min());
    return digits == smallest ? "(" + std::to_string(std::numeric_limits<int>::min() + 1) + " - 1)" : digits;
}

std::string GeneratedMark(const std::string& origin) {
    return std::string(kGeneratedMark) + origin + R"(; do not edit. Regenerate with the target "generate".)";
}

} // namespace Generator
