#include "Framework/SupportFunc.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <system_error>

namespace {

std::string_view WithoutBlanks(std::string_view text) {
    constexpr std::string_view Blanks = " \t\r\n";
    text.remove_prefix(std::min(text.find_first_not_of(Blanks), text.size()));
    return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

/// The text of a number as std::from_chars takes it, which knows no plus sign; empty when there is none.
std::string_view NumberText(std::string_view text) {
    text = WithoutBlanks(text);
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return {};
        }
    }
    return text;
}

bool EqualsIgnoringCase(std::string_view text, std::string_view lowerCase) {
    const auto same = [](char c, char lower) { return (c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c) == lower; };
    return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(), same);
}

/// Of a number that std::from_chars calls out of range: true when it is too large, false when it is too close to zero.
/// The power of ten of its first significant digit tells, since nothing near 1 is out of range.
bool IsTooLarge(std::string_view number) {
    const std::size_t exponentMark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, exponentMark);
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t firstDigit = mantissa.find_first_of("123456789");
    const long long power = static_cast<long long>(point) - static_cast<long long>(firstDigit);

    std::string_view exponentText = number.substr(std::min(exponentMark + 1, number.size()));
    if (exponentText.starts_with('+')) {
        exponentText.remove_prefix(1);
    }
    // An exponent this far out outweighs any mantissa that fits into memory.
    constexpr long long Limit = std::numeric_limits<long long>::max() / 4;
    long long exponent = 0;
    const auto result = std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
    if (result.ec == std::errc::result_out_of_range) {
        exponent = exponentText.starts_with('-') ? -Limit : Limit;
    }
    return std::clamp(exponent, -Limit, Limit) + power > 0;
}

template <typename... Arguments> zelString WrittenNumber(Arguments... arguments) {
    std::array<char, 64> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), arguments...);
    return zelString(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
}

} // namespace

int SupportFunc::GetIntValue(const zelString& text) noexcept {
    const std::string_view number = NumberText(text);
    const char* const end = number.data() + number.size();
    int value = 0;
    const auto result = std::from_chars(number.data(), end, value);
    if (result.ptr != end || result.ec == std::errc::invalid_argument) {
        return 0;
    }
    if (result.ec == std::errc::result_out_of_range) {
        return number.starts_with('-') ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    }
    return value;
}

bool SupportFunc::GetBoolValue(const zelString& text) noexcept {
    static constexpr std::array<std::string_view, 6> TrueWords{"true", "1", "yes", "y", "on", "t"};
    const std::string_view word = WithoutBlanks(text);
    return std::any_of(TrueWords.begin(), TrueWords.end(),
                       [word](std::string_view trueWord) { return EqualsIgnoringCase(word, trueWord); });
}

double SupportFunc::GetDoubleValue(const zelString& text) noexcept {
    const std::string_view number = NumberText(text);
    const char* const end = number.data() + number.size();
    double value = 0;
    const auto result = std::from_chars(number.data(), end, value);
    // A parenthesis is the payload of a nan in C, which is no number in a document.
    if (result.ptr != end || result.ec == std::errc::invalid_argument || number.ends_with(')')) {
        return 0;
    }
    if (result.ec == std::errc::result_out_of_range) {
        const double limit = IsTooLarge(number) ? std::numeric_limits<double>::max() : 0.0;
        return number.starts_with('-') ? -limit : limit;
    }
    return value;
}

zelString SupportFunc::GetStrValue(bool value) {
    return value ? "true" : "false";
}

zelString SupportFunc::GetStrValue(long value) {
    return WrittenNumber(value);
}

zelString SupportFunc::GetStrValue(double value) {
    // The spelling of XML Schema, which other readers of the documents know.
    if (std::isnan(value)) {
        return "NaN";
    }
    if (std::isinf(value)) {
        return value < 0 ? "-INF" : "INF";
    }
    // Left to itself, std::to_chars writes 100000 as 1e+05, which few readers of a price or a timeout expect.
    const double size = std::fabs(value);
    if (size == 0 || (size >= 1e-5 && size < 1e15)) {
        return WrittenNumber(value, std::chars_format::fixed);
    }
    return WrittenNumber(value);
}
