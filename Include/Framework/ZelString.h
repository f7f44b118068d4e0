#pragma once

#include <cstdarg>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include <xercesc/util/XercesDefs.hpp>

#include "Framework/FrameworkExport.h"

using TCHAR = char;
using LPCTSTR = const char*;

/// The text type of every container: a std::string that also reads as `const char*`, takes UTF-16 from the DOM and
/// formats.
///
/// The text is UTF-8 whatever the locale; positions, lengths and comparison are those of its bytes. Nothing checks that
/// bytes given as `const char*` are UTF-8; conversions to UTF-16 refuse them when they are not.
///
/// `zelString` is the only instantiation, and its code lives in the library. As with std::string, one object must not
/// be changed by one thread while another uses it. Where memory runs out, std::bad_alloc is thrown and the text is as
/// it was.
///
/// Reading both as std::string and as `const char*` makes two forms ambiguous: write `std::string_view view = text`
/// in place of `view(text)`, and `text.clear()` in place of `text = {}`.
template <typename CharT> class FRAMEWORK_API zelStringDef : public std::basic_string<CharT> {
    static_assert(std::is_same_v<CharT, char>, "zelString, a text of bytes in UTF-8, is the only instantiation");
    using Base = std::basic_string<CharT>;

public:
    zelStringDef() noexcept = default;
    zelStringDef(const zelStringDef&) = default;
    zelStringDef(zelStringDef&&) noexcept = default;
    virtual ~zelStringDef() = default;

    /// Copies the text up to its closing zero. Null gives the empty text.
    zelStringDef(const CharT* pText) : Base(pText ? pText : "") {}

    /// Takes UTF-16 text up to its closing zero as UTF-8; half a surrogate pair becomes U+FFFD. Null gives the empty
    /// text.
    zelStringDef(const XMLCh* pText) { *this = pText; }

    /// The empty text, as any other null pointer gives it.
    zelStringDef(std::nullptr_t) noexcept {}

    zelStringDef(const Base& text) : Base(text) {}
    zelStringDef(Base&& text) noexcept : Base(std::move(text)) {}
    explicit zelStringDef(std::basic_string_view<CharT> text) : Base(text) {}

    /// Copies `length` bytes, zeros among them included. Null is allowed when `length` is 0.
    zelStringDef(const CharT* pText, std::size_t length) : Base(std::basic_string_view<CharT>(pText, length)) {}

    zelStringDef& operator=(const zelStringDef&) = default;
    zelStringDef& operator=(zelStringDef&&) noexcept = default;

    zelStringDef& operator=(const Base& text) {
        Base::operator=(text);
        return *this;
    }

    zelStringDef& operator=(Base&& text) noexcept {
        Base::operator=(std::move(text));
        return *this;
    }

    /// As the constructor from that type; `pText` may point into this text.
    zelStringDef& operator=(const CharT* pText) {
        Base::operator=(pText ? pText : "");
        return *this;
    }

    /// As the constructor from that type.
    zelStringDef& operator=(const XMLCh* pText);

    zelStringDef& operator=(std::nullptr_t) noexcept {
        this->clear();
        return *this;
    }

    /// The text with its closing zero, never null. Owned by this object and valid until it is next changed or
    /// destroyed.
    operator const CharT*() const noexcept { return this->c_str(); }

    /// Any integer type finds the byte at that position: without these, a signed one would hesitate between the base's
    /// operator and that of `const char*`. A position past the end is undefined, as in std::string.
    template <typename Integer>
    requires std::is_integral_v<Integer> CharT& operator[](Integer position) {
        return Base::operator[](static_cast<std::size_t>(position));
    }

    template <typename Integer>
    requires std::is_integral_v<Integer>
    const CharT& operator[](Integer position) const { return Base::operator[](static_cast<std::size_t>(position)); }

    /// Replaces the text by what printf would print. The arguments may point into this text.
    ///
    /// A null format leaves the text as it was. When the formatter fails, or the result with its closing zero would
    /// need more than 499,999,999 bytes, the text becomes empty. The decimal point of `%f` and its kind follows the
    /// program's locale: write numbers with SupportFunc::GetStrValue.
    __attribute__((format(printf, 2, 3))) void Format(const char* format, ...);

    /// As Format, from an argument list; `arguments` itself is left unread, and stays the caller's to end.
    __attribute__((format(printf, 2, 0))) void FormatWithArgumentList(const char* format, std::va_list arguments);

    /// Turns the letters a to z into A to Z. No other character changes, whatever the locale. Returns this object.
    zelStringDef& MakeUpper() noexcept;

    /// Turns the letters A to Z into a to z. No other character changes, whatever the locale. Returns this object.
    zelStringDef& MakeLower() noexcept;

    /// Takes away blanks (space, tab, CR and LF, those of XML): at both ends when `bBothEnds` is true, else only at the
    /// end. Returns this object.
    zelStringDef& Trim(bool bBothEnds) noexcept;

    /// The first `length` bytes: all of the text when it is shorter, nothing for a negative length.
    zelStringDef Left(int length) const;

    /// Replaces every `find` by `replacement`, from the left; what has been put in is not searched again. An empty
    /// `find` replaces nothing. Either may be this very text. Returns how many were replaced.
    std::size_t ReplaceStr(const zelStringDef& find, const zelStringDef& replacement);
};

extern template class zelStringDef<char>;

using zelString = zelStringDef<char>;
