#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "Framework/ParameterList.h"
#include "Framework/SupportFunc.h"
#include "Framework/TypedDataEnumeration.h"
#include "Framework/XMLSupport/EnumerationWords.h"
#include "Framework/ZelString.h"

namespace {

using namespace std::string_view_literals;

/// A program that calls for decimal commas, in C++ streams always and in the C library where such a locale is
/// installed.
class CommaLocale {
public:
    CommaLocale() : m_Old(std::locale::global(std::locale(std::locale(), new Comma))) {
        for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "ru_RU.UTF-8"}) {
            if (std::setlocale(LC_ALL, name)) {
                break;
            }
        }
    }
    ~CommaLocale() {
        std::setlocale(LC_ALL, "C");
        std::locale::global(m_Old);
    }

private:
    struct Comma : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
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
    } table[] = {{"0", 0},
                 {"12", 12},
                 {" \t\r\n-12\n ", -12},
                 {"+7", 7},
                 {"007", 7},
                 {"2147483647", Most},
                 {"2147483648", Most},
                 {"-2147483648", Least},
                 {"-2147483649", Least},
                 {"99999999999999999999999", Most},
                 {"-99999999999999999999999", Least},
                 {"", 0},
                 {" ", 0},
                 {"+", 0},
                 {"-", 0},
                 {"+-5", 0},
                 {"--5", 0},
                 {"+ 5", 0},
                 {"12.0", 0},
                 {"0x10", 0},
                 {"1e3", 0},
                 {"12 13", 0},
                 {"12a", 0},
                 {"1,000", 0},
                 {"1.000", 0},
                 {"99999999999x", 0},
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
                 {"1E+3", 1000},
                 {"12", 12},
                 {"4.9e-324", 4.9e-324},
                 {"1.7976931348623157e308", Most},
                 {"1e309", Most},
                 {"-1e309", -Most},
                 {"1" + zeros, Most},
                 {"-1" + zeros, -Most},
                 {"0.0001e+999", Most},
                 {"1" + zeros + "e-20", Most},
                 {"1e99999999999999999999", Most},
                 {"1e9223372036854775807", Most},
                 {"1e-400", 0},
                 {"0." + zeros + "1e+20", 0},
                 {"1e-99999999999999999999", 0},
                 {"0e999", 0},
                 {"0." + zeros + "1e405", 1e4},
                 {"INF", Infinity},
                 {"-INF", -Infinity},
                 {"+inf", Infinity},
                 {"Infinity", Infinity},
                 {"", 0},
                 {".", 0},
                 {"1,5", 0},
                 {"1.5.2", 0},
                 {"1e", 0},
                 {"0x1p3", 0},
                 {"+-1", 0},
                 {"abc", 0},
                 {"1.5f", 0},
                 {"nan(1)", 0},
                 {"infinit", 0},
                 {"1e999x", 0}};
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
    } table[] = {{0, "0"},
                 {-0.0, "-0"},
                 {1.5, "1.5"},
                 {0.1, "0.1"},
                 {100000, "100000"},
                 {1234567.25, "1234567.25"},
                 {-3, "-3"},
                 {1e14, "100000000000000"},
                 {1e15, "1e+15"},
                 {0.00001, "0.00001"},
                 {1e-6, "1e-06"},
                 {5e-324, "5e-324"},
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
    EXPECT_EQ(list.ItemData(0), nullptr);
    {
        const zelString text = "value";
        const long longValue = -5;
        const bool boolValue = true;
        const int intValue = 6;
        const double doubleValue = 0.5;
        const char character = 'c';
        list.Add(&text, dcString, "Name", false);
        list.Add(&longValue, dcLong, "l", false);
        list.Add(&boolValue, dcBool, "b", false);
        list.Add(&intValue, dcInt, "i", false);
        list.Add(&doubleValue, dcDouble, "d", false);
        list.Add(&character, dcChar, "c", true);
        list.Add("buffer", dcCharBuff, nullptr, false);
        list.Add("fixed", dcFixedChar, "f", false);
        list.Add(nullptr, dcString, "none", false);
        list.Add(&list, dcTypdeDCPtr, "p", false);
    }
    ASSERT_EQ(list.size(), 10U);
    EXPECT_EQ(list.ItemData(10), nullptr);
    const ParameterList::ParameterDataType& first = *list.ItemData(0);
    EXPECT_TRUE(first.ElementName == "Name" && first.dcType == dcString && first.strValue == "value" &&
                !first.RequiresDelete);
    EXPECT_EQ(list.ItemData(1)->lValue, -5);
    EXPECT_TRUE(list.ItemData(2)->bValue);
    EXPECT_EQ(list.ItemData(3)->iValue, 6);
    EXPECT_EQ(list.ItemData(4)->dValue, 0.5);
    EXPECT_TRUE(list.ItemData(5)->cValue == 'c' && list.ItemData(5)->RequiresDelete);
    EXPECT_TRUE(list.ItemData(6)->chBuffer == "buffer"sv && list.ItemData(6)->FixedLen == 7);
    EXPECT_TRUE(list.ItemData(7)->tcValue == "fixed"sv);
    EXPECT_EQ(list.ItemData(8)->strValue, "");
    EXPECT_EQ(static_cast<void*>(list.ItemData(9)->pTDC), &list);
}

/// An enumeration class as the generator writes them, over a vocabulary with a gap.
class StopBits : public TypedDataEnumeration {
public:
    enum ContainedValues { VALUE_UNKNOWN = -1, ONE = 0, TWO = 2, VALUE_END_OF_LIST };

    StopBits() : m_Value(VALUE_UNKNOWN) {}
    StopBits(const int& value) : m_Value(value) {}
    StopBits(const ContainedValues& value) : m_Value(value) {}
    StopBits(LPCTSTR szVal) : StopBits() { StopBits::AssignValue(szVal); }
    StopBits(const StopBits&) = default;

    StopBits& operator=(const StopBits&) = default;
    StopBits& operator=(const int& value) {
        m_Value = value;
        return *this;
    }
    StopBits& operator=(const ContainedValues& value) {
        m_Value = value;
        return *this;
    }
    StopBits& operator=(LPCTSTR sVal) override {
        AssignValue(sVal);
        return *this;
    }

    int Value() const { return m_Value; }
    operator int() const { return m_Value; }
    operator ContainedValues() const { return static_cast<ContainedValues>(m_Value); }
    bool operator==(const StopBits& other) const { return m_Value == other.m_Value; }
    bool operator==(const int& value) const { return m_Value == value; }
    bool operator==(const ContainedValues& value) const { return m_Value == static_cast<int>(value); }
    bool operator==(LPCTSTR _Cmp) const override { return Framework::IsWordOf(Words, m_Value, _Cmp); }
    zelString StringOf() const override { return Framework::WordOf(Words, m_Value); }
    static void GetContainedValueList(std::vector<zelString>& pList) { Framework::AppendWords(Words, pList); }

protected:
    void AssignValue(LPCTSTR szVal) override { m_Value = Framework::NumberOf(Words, szVal); }
    int m_Value;

private:
    static constexpr Framework::EnumerationWord Words[] = {{"ONE", ONE}, {"TWO", TWO}};
};

TEST(Enumeration, EveryKindOfValueFindsItsMeaning) {
    const zelString two = "TWO";
    EXPECT_EQ(StopBits(0).Value(), 0);
    EXPECT_EQ(StopBits(nullptr).Value(), -1);
    EXPECT_EQ(StopBits().Value(), -1);
    EXPECT_EQ(StopBits(two).Value(), 2);
    EXPECT_EQ(StopBits(StopBits::TWO).Value(), 2);

    StopBits bits = "TWO";
    const StopBits same = bits;
    const int number = bits;
    const StopBits::ContainedValues value = bits;
    EXPECT_TRUE(number == 2 && value == StopBits::TWO);
    EXPECT_TRUE(bits == same && bits == 2 && bits == StopBits::TWO && bits == "TWO" && bits == two && "TWO" == bits &&
                2 == bits);
    EXPECT_TRUE(bits != 0 && bits != "ONE" && bits != StopBits::ONE && !(bits == nullptr) && bits != StopBits(0));
    bits = 0;
    EXPECT_TRUE(bits == "ONE" && bits == 0);
    bits = two;
    EXPECT_EQ(bits.Value(), 2);
    bits = nullptr;
    EXPECT_EQ(bits.Value(), -1);
    bits = StopBits::ONE;
    bits = same;
    EXPECT_EQ(bits.Value(), 2);
}

TEST(Enumeration, WordsAndNumbers) {
    for (const char* text : {"one", "ON", "ONES", " ONE", "", "2"}) {
        EXPECT_EQ(StopBits(text).Value(), -1) << text;
    }
    for (const int number : {-1, 1, 3, -2, 99}) {
        const StopBits bits(number);
        EXPECT_TRUE(bits.Value() == number && bits.StringOf() == "" && bits == "" && bits == nullptr);
    }
    StopBits bits("ONE");
    TypedDataEnumeration& base = bits;
    EXPECT_EQ(&(base = "TWO"), &base);
    EXPECT_TRUE(base == "TWO" && base.StringOf() == "TWO" && bits.Value() == 2);
    std::vector<zelString> list{"before"};
    StopBits::GetContainedValueList(list);
    EXPECT_EQ(list, (std::vector<zelString>{"before", "ONE", "TWO"}));
}

} // namespace
