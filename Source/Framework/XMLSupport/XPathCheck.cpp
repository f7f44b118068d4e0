#include "Framework/XMLSupport/XPathCheck.h"

#include "Framework/XMLSupport/Utf.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace Framework {

namespace {

constexpr std::size_t kLongestExpression = 4096;
constexpr std::size_t kDeepestBrackets = 100;
constexpr int kMostOperators = 500;
constexpr std::size_t kMostDigits = 30;

template <std::size_t count> bool IsOneOf(const std::array<std::string_view, count>& words, std::string_view word) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Xalan says what is wrong with a name, if anything is.
bool IsOfName(char c) {
    const auto lower = static_cast<char>(c | 0x20);
    return (lower >= 'a' && lower <= 'z') || c == '_' || c == ':' || static_cast<unsigned char>(c) > 0x7F;
}

/// Goes over the tokens, knowing for each bracket what it is for.
class XPathCheck {
public:
    explicit XPathCheck(std::string_view expression) : m_expression(expression) {}

    void Run() {
        while (m_at < m_expression.size()) {
            TakeToken();
        }
    }

private:
    /// What stands between two brackets.
    struct Part {
        std::string_view function; ///< whose arguments they are; empty for other brackets
        std::size_t argument = 0;
        bool isText = false; ///< what stands here is turned into a text
    };

    /// Functions that XPath does not have are taken for ones of texts.
    static bool TakesText(const Part& part) {
        static constexpr std::array<std::string_view, 15> kNoTexts = {
            "boolean", "not",   "true", "false", "number",   "sum",        "floor",        "ceiling",
            "round",   "count", "name", "last",  "position", "local-name", "namespace-uri"};
        return part.function == "substring" ? part.argument == 0 : !IsOneOf(kNoTexts, part.function);
    }

    static bool GivesLargeNumbers(std::string_view function) {
        return IsOneOf(std::array<std::string_view, 5>{"number", "sum", "floor", "ceiling", "round"}, function);
    }

    void TakeToken() {
        const char c = m_expression[m_at];
        const std::size_t begin = m_at++;
        switch (c) {
        case ' ':
        case '\t':
        case '\r':
        case '\n':
            return; // a name is one of a function even if blanks stand behind it
        case '\'':
        case '"':
            m_at = m_expression.find(c, m_at);
            if (m_at++ == std::string_view::npos) {
                throw XPathProblem("a quoted text without end");
            }
            break;
        case '(':
        case '[':
            Open(c);
            return;
        case ')':
        case ']':
            if (m_open.size() > 1) {
                m_open.pop_back();
            }
            break;
        case ',':
            ++m_open.back().argument;
            m_open.back().isText = !m_open.back().function.empty() && TakesText(m_open.back());
            break;
        default:
            if (IsOfName(c)) {
                TakeName(begin);
                return;
            }
            if (IsDigit(c) || c == '.') {
                TakeNumber(begin);
            } else {
                TakeSign(c);
                return;
            }
        }
        m_name = {};
        m_isBehindOperand = c != ',';
    }

    void Open(char bracket) {
        Part part;
        if (bracket == '(') {
            part.function = m_name;
            part.isText = m_name.empty() ? m_open.back().isText : TakesText(part);
        }
        if (GivesLargeNumbers(part.function)) {
            Calculate();
        }
        m_open.push_back(part);
        if (m_open.size() - 1 > kDeepestBrackets) {
            throw XPathProblem("brackets nested deeper than " + std::to_string(kDeepestBrackets));
        }
        m_name = {};
        m_isBehindOperand = false;
    }

    void TakeName(std::size_t begin) {
        const auto isOfName = [](char c) { return IsOfName(c) || IsDigit(c) || c == '-' || c == '.'; };
        while (m_at < m_expression.size() && isOfName(m_expression[m_at])) {
            ++m_at;
        }
        m_name = m_expression.substr(begin, m_at - begin);
        const bool isOperator =
            m_isBehindOperand && IsOneOf(std::array<std::string_view, 4>{"and", "or", "div", "mod"}, m_name);
        if (isOperator && (m_name == "div" || m_name == "mod")) {
            Calculate();
        }
        m_isBehindOperand = !isOperator && !m_name.ends_with(':'); // of an axis, or of a prefix
        if (isOperator) {
            m_name = {};
        }
    }

    void TakeNumber(std::size_t begin) {
        while (m_at < m_expression.size() && (IsDigit(m_expression[m_at]) || m_expression[m_at] == '.')) {
            ++m_at;
        }
        if (m_at - begin > kMostDigits) {
            throw XPathProblem("a number of more than " + std::to_string(kMostDigits) + " digits");
        }
    }

    void TakeSign(char c) {
        const bool isOperator = std::string_view("/|+-*=!<>").find(c) != std::string_view::npos;
        if (isOperator && ++m_operators > kMostOperators) {
            throw XPathProblem("more than " + std::to_string(kMostOperators) + " steps and operators");
        }
        if (c == '+' || c == '-' || (c == '*' && m_isBehindOperand)) {
            Calculate();
        }
        m_isBehindOperand = c == '*' && !m_isBehindOperand; // then it stands for any name
        m_name = {};
    }

    void Calculate() const {
        if (m_open.back().isText) {
            throw XPathProblem("a number that is calculated cannot be turned into a text");
        }
    }

    std::string_view m_expression;
    std::size_t m_at = 0;
    std::vector<Part> m_open = {Part()};
    std::string_view m_name;        ///< that stands before this token, and may be one of a function
    bool m_isBehindOperand = false; ///< where '*' multiplies, and "div" is no name
    int m_operators = 0;
};

} // namespace

void CheckXPath(std::string_view expression) {
    if (expression.size() > kLongestExpression) {
        throw XPathProblem("longer than " + std::to_string(kLongestExpression) + " bytes");
    }
    if (!IsXmlText(expression)) {
        throw XPathProblem("not a text in UTF-8");
    }
    XPathCheck(expression).Run();
}

} // namespace Framework
