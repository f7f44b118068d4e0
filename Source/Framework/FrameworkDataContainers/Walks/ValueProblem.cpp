#include "Framework/FrameworkDataContainers/Walks/ValueProblem.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace Framework {

namespace {

constexpr std::string_view blanks = " \t\r\n";

std::string_view WithoutBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// Texts as long as a book are told by their beginning.
std::string Quoted(std::string_view text) {
    constexpr std::size_t longest = 60;
    if (text.size() <= longest) {
        return std::string("\"").append(text).append("\"");
    }
    std::size_t end = longest;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
        --end; // not in the middle of a character
    }
    return std::string("\"").append(text.substr(0, end)).append("...\"");
}

std::string Number(std::string_view text, std::string_view what, std::string_view readAs) {
    return (text.empty() ? std::string("an empty text") : Quoted(text)) + " is no " + std::string(what) +
           " and is read as " + std::string(readAs);
}

/// The digits of a whole number without sign and leading zeros; nothing when it is none.
std::optional<std::string_view> DigitsOf(std::string_view text) {
    text = WithoutBlanks(text);
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        text.remove_prefix(1);
    }
    if (text.empty() || text.find_first_not_of("0123456789") != std::string_view::npos) {
        return {};
    }
    return text.substr(std::min(text.find_first_not_of('0'), text.size()));
}

std::optional<FoundProblem> IntProblem(std::string_view text) {
    const std::optional<std::string_view> digits = DigitsOf(text);
    if (!digits.has_value()) {
        return FoundProblem{FindingCode::NotANumber, Number(text, "whole number", "0")};
    }
    const int value = SupportFunc::GetIntValue(zelString(text));
    const std::string written = std::to_string(value);
    if (written.substr(value < 0 ? 1 : 0) != (value == 0 ? "0" : *digits) || (value == 0 && !digits->empty())) {
        return FoundProblem{FindingCode::NumberOutOfRange,
                            Quoted(text) + " is beyond what the field can hold and is read as " + written};
    }
    return {};
}

/// Whether a text that is read as 0 is a number all the same, one too close to it.
bool IsUnderflow(std::string_view text) {
    text = WithoutBlanks(text);
    text.remove_prefix(text.starts_with('+') || text.starts_with('-') ? 1 : 0);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    return result.ec == std::errc::result_out_of_range && result.ptr == text.data() + text.size();
}

std::optional<FoundProblem> DoubleProblem(std::string_view text) {
    const double value = SupportFunc::GetDoubleValue(zelString(text));
    const bool hasDigits = text.find_first_of("123456789") != std::string_view::npos;
    const bool isWritten = text.find_first_not_of("0123456789.+-eE \t\r\n") == std::string_view::npos;
    const bool isTooSmall = value == 0.0 && isWritten && IsUnderflow(text);
    if (value == 0.0 && !isTooSmall && (!isWritten || hasDigits || text.find('0') == std::string_view::npos)) {
        return FoundProblem{FindingCode::NotANumber, Number(text, "number", "0")};
    }
    if (isTooSmall || std::fabs(value) == std::numeric_limits<double>::max()) {
        return FoundProblem{FindingCode::NumberOutOfRange, Quoted(text) + " is beyond what the field can hold and is "
                                                                          "read as the nearest limit"};
    }
    return {};
}

std::optional<FoundProblem> BoolProblem(std::string_view text) {
    constexpr std::array<std::string_view, 6> falseWords = {"false", "0", "no", "n", "off", "f"};
    std::string word(WithoutBlanks(text));
    std::transform(word.begin(), word.end(), word.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    if (SupportFunc::GetBoolValue(zelString(text)) ||
        std::find(falseWords.begin(), falseWords.end(), word) != falseWords.end()) {
        return {};
    }
    return FoundProblem{FindingCode::NotABool, Number(text, "truth value", "false") + ", expected true or false"};
}

} // namespace

std::optional<FoundProblem> ValueProblem(const FieldRow& row, std::string_view text,
                                         std::vector<std::string> (*near)(std::string_view,
                                                                          const std::vector<std::string>&)) {
    switch (row.value) {
    case FieldValue::Bool:
        return BoolProblem(text);
    case FieldValue::Int:
        return IntProblem(text);
    case FieldValue::Double:
        return DoubleProblem(text);
    case FieldValue::Enumeration:
        break;
    case FieldValue::String:
    case FieldValue::Container:
        return {};
    }
    const zelString copy(text);
    if (copy.empty()) {
        return {}; // what a dump writes for none of its words
    }
    const auto newWord = [&] {
        const std::unique_ptr<TypedDataEnumeration> word(row.list->newWord(copy.c_str()));
        return word->StringOf();
    };
    if ((row.enumeration != nullptr ? row.enumeration->wordOf(copy.c_str()) : newWord()) == copy) {
        return {};
    }
    std::vector<zelString> words;
    (row.enumeration != nullptr ? row.enumeration->words : row.list->words)(words);
    const std::vector<std::string> known(words.begin(), words.end());
    constexpr std::size_t mostListed = 8;
    std::string expected;
    for (std::size_t i = 0; known.size() <= mostListed && i < known.size(); ++i) {
        expected += (i == 0 ? ", expected " : i + 1 == known.size() ? " or " : ", ") + known[i];
    }
    return FoundProblem{FindingCode::UnknownWord,
                        Quoted(text) + " is no word of " + std::string(row.className) + expected, NodeRef::None,
                        near(text, known)};
}

} // namespace Framework
