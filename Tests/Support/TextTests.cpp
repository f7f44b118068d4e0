#include <algorithm>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "Framework/XMLSupport/Utf.h"
#include "Framework/ZelString.h"
#include "Framework/ZelStringToWideChar.h"

namespace {

using namespace std::string_view_literals;

std::size_t ViewTaken(std::string_view text) {
    return text.size();
}
const char* Chosen(const std::string&) {
    return "string";
}
const char* Chosen(const char*) {
    return "pointer";
}

TEST(ZelString, UsualExpressionsFindOneMeaning) {
    const zelString x = "x";
    const zelString y("y");
    EXPECT_TRUE(x == "x" && "x" == x && x == std::string("x") && x != y && x < y && x < "y" && !(x == nullptr));
    EXPECT_EQ("a" + x + "b" + 'c', "axbc");
    EXPECT_EQ(ViewTaken(x + y) + ViewTaken(x) + ViewTaken(zelString("\0b"sv)), 5U);
    EXPECT_STREQ(Chosen(x), "string");
    EXPECT_STREQ(Chosen("x"), "pointer");

    zelString text("xy");
    EXPECT_TRUE(text[0] == 'x' && text[1U] == 'y' && text[std::size_t{1}] == 'y' && text[1L] == 'y' && x[0L] == 'x');
    text[std::ptrdiff_t{0}] = 'z';
    text += x;
    text += "!";
    std::ostringstream out;
    out << text;
    EXPECT_EQ(out.str(), "zyx!");

    const char* pText = text;
    EXPECT_STREQ(pText, "zyx!");
}

TEST(ZelString, TakesEveryKindOfText) {
    const char* pNull = nullptr;
    const XMLCh* pWideNull = nullptr;
    EXPECT_TRUE(zelString(pNull).empty() && zelString(pWideNull).empty() && zelString(pNull, 0).empty());
    EXPECT_EQ(zelString("abc", 2), "ab");
    zelString text = "start of some length, past the small buffer";
    text = text.c_str() + 6;
    EXPECT_EQ(text, "of some length, past the small buffer");
    text = u"gr\u00FC\u00DFe";
    EXPECT_EQ(text, "gr\xC3\xBC\xC3\x9F"
                    "e");
    text = std::string("std");
    EXPECT_EQ(text, "std");
    text = nullptr;
    EXPECT_EQ(text, "");
}

TEST(ZelString, FormatGrowsToWhatItNeeds) {
    zelString text;
    // Around the first buffer, and far above it.
    for (const int length : {0, 93, 94, 95, 96, 97, 5000, 20000000}) {
        text.Format("%*d|%s", length + 1, 7, "end");
        ASSERT_EQ(text.size(), static_cast<std::size_t>(length) + 5);
        EXPECT_EQ(text.substr(static_cast<std::size_t>(length)), "7|end");
    }
    text = "own text";
    text.Format("%s, %s, %d%%", text.c_str(), std::string(200, 'a').c_str(), 5);
    EXPECT_EQ(text, "own text, " + std::string(200, 'a') + ", 5%");
    const char* pNoFormat = nullptr;
    text = "kept";
    text.Format(pNoFormat, 1);
    EXPECT_EQ(text, "kept");
    text.Format("%c%c", 'a', 0);
    EXPECT_EQ(text, "a\0"sv);
    // Too long, and an error of the formatter at every size, as the character has no multibyte form in the C locale.
    text.Format("%499999999d", 1);
    EXPECT_EQ(text, "");
    text = "old";
    text.Format("%ls", L"\xD800");
    EXPECT_EQ(text, "");
}

TEST(ZelString, CaseTrimLeftReplace) {
    EXPECT_EQ(zelString("a\xC3\xA4z{`[@Z").MakeUpper(), "A\xC3\xA4Z{`[@Z");
    EXPECT_EQ(zelString("A\xC3\x84Z{`[@z").MakeLower(), "a\xC3\x84z{`[@z");

    const struct {
        const char *text, *bothEnds, *endOnly;
    } trims[] = {{" \t\r\na b\n ", "a b", " \t\r\na b"},
                 {" \n", "", ""},
                 {"", "", ""},
                 {"\va\xC2\xA0", "\va\xC2\xA0", "\va\xC2\xA0"}};
    for (const auto& [source, bothEnds, endOnly] : trims) {
        EXPECT_EQ(zelString(source).Trim(true), bothEnds);
        EXPECT_EQ(zelString(source).Trim(false), endOnly);
    }
    const zelString text = "abc";
    EXPECT_TRUE(text.Left(2) == "ab" && text.Left(9) == "abc" && text.Left(0) == "" && text.Left(-1) == "");

    const struct {
        const char *text, *find, *replacement, *result;
        std::size_t count;
    } replacements[] = {{"aXbX", "X", "XX", "aXXbXX", 2}, {"aaa", "aa", "b", "ba", 1}, {"abab", "ab", "", "", 2},
                        {"abc", "", "x", "abc", 0},       {"abc", "d", "x", "abc", 0}, {"", "a", "x", "", 0}};
    for (const auto& [source, find, replacement, result, count] : replacements) {
        zelString changed = source;
        EXPECT_EQ(changed.ReplaceStr(find, replacement), count) << source;
        EXPECT_EQ(changed, result);
    }
    zelString self = "ab";
    EXPECT_EQ(self.ReplaceStr(self, self + self), 1U);
    EXPECT_EQ(self, "abab");
}

/// There and back, in room of just the size that is asked for.
void ExpectCopied(std::string_view text) {
    const std::size_t allowed = std::min(Framework::FindNonXmlText(text), text.size());
    std::vector<XMLCh> room(text.size());
    const Framework::Utf16Copy copied = Framework::CopyXmlUtf16(text, room.data());
    EXPECT_EQ(copied.bytes, allowed);
    EXPECT_TRUE(std::u16string(room.data(), copied.units) == Framework::ToUtf16(text.substr(0, allowed)));
    std::string back;
    Framework::AppendUtf8(back, room.data(), copied.units);
    EXPECT_TRUE(back == text.substr(0, allowed));
}

/// Behind allowed ones of any number, so that both the word-wise and the single-byte way meet it, and within texts that
/// are long enough to be looked through in blocks.
TEST(Utf, FindsWhatIsNotUtf8AndWhatXmlForbids) {
    constexpr std::string_view malformed[] = {"\x80",          "\xC0\x80",         "\xC3",
                                              "\xC3(",         "\xE0\x9F\xBF",     "\xE2\x82",
                                              "\xE2\x82(",     "\xED\xA0\x80",     "\xF0\x8F\xBF\xBF",
                                              "\xF0\x9F\x92(", "\xF4\x90\x80\x80", "\xFF"};
    constexpr std::string_view forbidden[] = {"\0"sv, "\x08", "\x0B", "\x1F", "\xEF\xBF\xBE", "\xEF\xBF\xBF"};
    const std::string allowed = "\t\n\r \x7F\xC2\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBD\xEF\xBC\x8C\xF0\x9F\xBF\xBF";
    const std::string filling(100, 'x');
    for (std::size_t offset = 0; offset < 20; ++offset) {
        const std::string before(offset, 'a');
        const std::string accented = "\xC3\xA9" + before;
        EXPECT_TRUE(Framework::IsXmlText(before + allowed));
        EXPECT_EQ(Framework::FindForbidden(before + allowed), std::string_view::npos);
        ExpectCopied(before + "\xF0\x9F\x98\x80\t" + accented);
        const auto check = [&](std::string_view bad, bool isUtf8) {
            for (const std::string& start : {before, accented, accented + filling}) {
                for (const std::string& text :
                     {start + std::string(bad), start + std::string(bad) + "behind it" + filling}) {
                    EXPECT_EQ(Framework::FindNonXmlText(text), start.size());
                    EXPECT_EQ(Framework::FindInvalidUtf8(text), isUtf8 ? std::string_view::npos : start.size());
                    ExpectCopied(text);
                }
            }
        };
        for (const std::string_view bad : malformed) {
            check(bad, false);
            EXPECT_THROW(Framework::ToUtf16(before + std::string(bad)), std::invalid_argument);
        }
        for (const std::string_view bad : forbidden) {
            check(bad, true);
            EXPECT_EQ(Framework::FindForbidden(before + allowed + std::string(bad) + before),
                      before.size() + allowed.size());
        }
    }
}

TEST(Utf, EveryCharacterConvertsThereAndBack) {
    std::u16string all;
    std::size_t count = 0;
    for (char32_t character = 1; character <= 0x10FFFF; ++character) {
        if (character < 0x10000) {
            if (character >= 0xD800 && character <= 0xDFFF) {
                continue;
            }
            all += static_cast<char16_t>(character);
        } else {
            all += static_cast<char16_t>(0xD7C0 + (character >> 10));
            all += static_cast<char16_t>(0xDC00 | (character & 0x3FF));
        }
        ++count;
    }
    const zelString text(all.c_str());
    EXPECT_EQ(Framework::FindInvalidUtf8(text), std::string::npos);
    EXPECT_EQ(Framework::FindNonXmlText(std::string_view(text).substr(0x1F)), text.find("\xEF\xBF\xBE") - 0x1F);
    EXPECT_EQ(Framework::CountCodePoints(text), count);
    EXPECT_TRUE(Framework::ToUtf16(text) == all);
    ExpectCopied(std::string_view(text).substr(0x1F));
    ExpectCopied(std::string_view(text).substr(text.find("\xEF\xBF\xBF") + 3));
    EXPECT_TRUE(Framework::ToUtf16("plain ASCII, \xE2\x82\xAC, \xF0\x9F\x98\x80") ==
                u"plain ASCII, \u20AC, \U0001F600");

    const char16_t lone[] = {'a', 0xD800, 'b', 0xDC00, 0xDC00, 0xD83D, 0xDE00, 0xD83D, 0};
    const std::string asText = "a\xEF\xBF\xBD"
                               "b\xEF\xBF\xBD\xEF\xBF\xBD\xF0\x9F\x98\x80\xEF\xBF\xBD";
    for (std::size_t offset = 0; offset < 20; ++offset) {
        EXPECT_EQ(zelString((std::u16string(offset, u'a') + lone).c_str()), std::string(offset, 'a') + asText);
        std::string greek;
        for (std::size_t i = 0; i < offset; ++i) {
            greek += "\xCE\xB1";
        }
        const std::u16string units = std::u16string(offset, u'\u03B1') + char16_t{0xDC00} + u"\u03B1" + lone;
        EXPECT_EQ(zelString(units.c_str()), greek + "\xEF\xBF\xBD\xCE\xB1" + asText);
    }
}

/// Characters of one byte to four in every order of five, in texts that are turned several characters at a time.
TEST(Utf, MixturesConvertThereAndBack) {
    const std::string characters[] = {"a", "\xCE\xB1", "\xE6\x9D\xA1", "\xF0\x9F\x98\x80"};
    for (std::size_t order = 0; order < 1024; ++order) {
        std::string five;
        for (std::size_t left = order + 1024; left > 1; left /= 4) {
            five += characters[left % 4];
        }
        std::string text;
        for (int i = 0; i < 20; ++i) {
            text += five + "\xE6\x9D\xA1\xE7\xA0\x81\xE9\x87\x8D\xCE\xB1\xCE\xB2\xCE\xB3\xCE\xB4";
        }
        ExpectCopied(text);
        ExpectCopied(text + "\xFF" + text);
    }
}

TEST(Utf, WideBufferIsUtf16OrRefused) {
    EXPECT_TRUE(std::u16string_view(zelStringToWideChar("\xE2\x82\xAC 5")) == u"\u20AC 5");
    EXPECT_EQ(static_cast<const XMLCh*>(zelStringToWideChar(""))[0], 0);
    EXPECT_THROW(zelStringToWideChar("\xFF"), std::invalid_argument);
}

} // namespace
