#include <cmath>
#include <limits>
#include <locale>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "Framework/ParameterList.h"
#include "Framework/SupportFunc.h"
#include "Framework/ZelString.h"

namespace {

using namespace std::string_view_literals;

/// A program that calls for decimal commas. (No source names what follows the locale of the C library.)
class CommaLocale {
public:
    CommaLocale() : m_Old(std::locale::global(std::locale(std::locale(), new Comma))) {}
    ~CommaLocale() { std::locale::global(m_Old); }

private:
    struct Comma : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
    };
    std::locale m_Old;
};

TEST(SupportFunc, ReadsInts) {
    const CommaLocale locale;
    constexpr int Least = std::numeric_limits<int>::min();
    constexpr int Most = std::numeric_limits<int>::max();
    const struct {
        std::string_view text;
        int value;
    } table[] = {{"12", 12},
                 {" \t\r\n-12\n ", -12},
                 {"+7", 7},
                 {"2147483647", Most},
                 {"2147483648", Most},
                 {"-2147483649", Least},
                 {"-99999999999999999999999", Least},
                 {"", 0},
                 {"-", 0},
                 {"+-5", 0},
                 {"12 13", 0},
                 {"1,000", 0},
                 {"\v5", 0},
                 {"5\0"sv, 0},
                 {"\xEF\xBC\x95", 0}};
    for (const auto& [text, value] : table) {
        EXPECT_EQ(SupportFunc::GetIntValue(zelString(text)), value) << text;
    }
}

TEST(SupportFunc, ReadsDoubles) {
    const CommaLocale locale;
    constexpr double Most = std::numeric_limits<double>::max();
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    const std::string zeros(400, '0');
    const struct {
        std::string text;
        double value;
    } table[] = {{"1.5", 1.5},
                 {" \n-1.5\t", -1.5},
                 {"+2", 2},
                 {".5", 0.5},
                 {"5.", 5},
                 {"1e3", 1000},
                 {"4.9e-324", 4.9e-324},
                 {"1.7976931348623157e308", Most},
                 {"1" + zeros, Most},
                 {"1" + zeros + "e-20", Most},
                 {"1e99999999999999999999", Most},
                 {"1e-99999999999999999999", 0},
                 {"0." + zeros + "1e405", 1e4},
                 {"INF", Infinity},
                 {"+inf", Infinity},
                 {"", 0},
                 {"1,5", 0},
                 {"0x1p3", 0},
                 {"+-1", 0},
                 {"nan(1)", 0}};
    for (const auto& [text, value] : table) {
        EXPECT_EQ(SupportFunc::GetDoubleValue(text), value) << text;
    }
    EXPECT_TRUE(std::signbit(SupportFunc::GetDoubleValue("-1e-400")) &&
                std::signbit(SupportFunc::GetDoubleValue("-0")));
    for (const char* text : {"NaN", "nan", "-NAN", " NaN "}) {
        EXPECT_TRUE(std::isnan(SupportFunc::GetDoubleValue(text))) << text;
    }
}

TEST(SupportFunc, WritesNumbersThatReadBack) {
    const CommaLocale locale;
    const struct {
        double value;
        const char* text;
    } table[] = {{-0.0, "-0"},
                 {1.5, "1.5"},
                 {0.1, "0.1"},
                 {1234567.25, "1234567.25"},
                 {1e14, "100000000000000"},
                 {1e15, "1e+15"},
                 {0.00001, "0.00001"},
                 {1e-6, "1e-06"},
                 {0.1 + 0.2, "0.30000000000000004"},
                 {std::numeric_limits<double>::max(), "1.7976931348623157e+308"},
                 {std::numeric_limits<double>::infinity(), "INF"},
                 {-std::numeric_limits<double>::infinity(), "-INF"}};
    for (const auto& [value, text] : table) {
        EXPECT_EQ(SupportFunc::GetStrValue(value), text);
        EXPECT_EQ(SupportFunc::GetDoubleValue(text), value) << text;
    }
    EXPECT_EQ(SupportFunc::GetStrValue(-std::nan("")), "NaN");
    double value = 1.0 / 3;
    for (int i = 0; i < 600; ++i, value *= i % 2 ? -3.7 : 1.0 / 41) {
        EXPECT_EQ(SupportFunc::GetDoubleValue(SupportFunc::GetStrValue(value)), value);
    }

    EXPECT_EQ(SupportFunc::GetStrValue(std::numeric_limits<long>::min()), "-9223372036854775808");
    EXPECT_EQ(SupportFunc::GetStrValue(1234567), "1234567");
}

TEST(SupportFunc, ReadsAndWritesBools) {
    for (const char* text : {"true", "TRUE", "True", "1", "yes", "YES", "y", "on", "On", "t", "T", " \t\r\ntrue\n"}) {
        EXPECT_TRUE(SupportFunc::GetBoolValue(text)) << text;
    }
    for (const char* text :
         {"", " ", "false", "0", "no", "n", "off", "f", "2", "01", "tru", "truee", "t rue", "+1", "\vtrue"}) {
        EXPECT_FALSE(SupportFunc::GetBoolValue(text)) << text;
    }
    EXPECT_EQ(SupportFunc::GetStrValue(true), "true");
    EXPECT_EQ(SupportFunc::GetStrValue(false), "false");
}

TEST(ParameterList, CopiesWhatItIsGiven) {
    ParameterList list;
    {
        const zelString text = "value";
        const long longValue = -5;
        const double doubleValue = 0.5;
        list.Add(&text, dcString, "Name", false);
        list.Add(&longValue, dcLong, "l", true);
        list.Add(&doubleValue, dcDouble, "d", false);
        list.Add("buffer", dcCharBuff, nullptr, false);
        list.Add(nullptr, dcString, "none", false);
    }
    EXPECT_EQ(list.ItemData(5), nullptr);
    const ParameterList::ParameterDataType& first = *list.ItemData(0);
    EXPECT_TRUE(first.ElementName == "Name" && first.dcType == dcString && first.strValue == "value");
    EXPECT_TRUE(list.ItemData(1)->lValue == -5 && list.ItemData(1)->RequiresDelete && !first.RequiresDelete);
    EXPECT_TRUE(list.ItemData(2)->dValue == 0.5 && list.ItemData(4)->strValue.empty());
    EXPECT_TRUE(list.ItemData(3)->chBuffer == "buffer"sv && list.ItemData(3)->FixedLen == 7);
}

} // namespace
