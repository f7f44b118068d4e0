#include "Framework/ZelString.h"

#include <algorithm>
#include <cstdio>
#include <memory>

#include "Framework/XMLSupport/Utf.h"

namespace {

constexpr std::size_t FirstFormatSize = 100;
constexpr std::size_t LargestFormatSize = 499999999;

constexpr const char* XmlBlanks = " \t\r\n";

/// The C library's functions follow the locale, and some of them break UTF-8.
char UpperOf(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
char LowerOf(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

template <typename CharT> zelStringDef<CharT>& zelStringDef<CharT>::operator=(const XMLCh* pText) {
    Base text;
    if (pText) {
        const std::size_t length = std::char_traits<XMLCh>::length(pText);
        text.reserve(length);
        Framework::AppendUtf8(text, pText, length);
    }
    this->swap(text);
    return *this;
}

template <typename CharT> void zelStringDef<CharT>::Format(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    try {
        FormatWithArgumentList(format, arguments);
    } catch (...) {
        va_end(arguments);
        throw;
    }
    va_end(arguments);
}

template <typename CharT> void zelStringDef<CharT>::FormatWithArgumentList(const char* format, std::va_list arguments) {
    if (!format) {
        return;
    }
    std::size_t size = FirstFormatSize;
    while (size <= LargestFormatSize) {
        const auto buffer = std::make_unique_for_overwrite<char[]>(size);
        // Each try consumes a list, so each one needs its own.
        std::va_list ownArguments;
        va_copy(ownArguments, arguments);
        const int length = std::vsnprintf(buffer.get(), size, format, ownArguments);
        va_end(ownArguments);
        if (length < 0) {
            size *= 2;
        } else if (static_cast<std::size_t>(length) >= size) {
            size = static_cast<std::size_t>(length) + 1;
        } else {
            this->assign(buffer.get(), static_cast<std::size_t>(length));
            return;
        }
    }
    this->clear();
}

template <typename CharT> zelStringDef<CharT>& zelStringDef<CharT>::MakeUpper() noexcept {
    std::transform(this->begin(), this->end(), this->begin(), UpperOf);
    return *this;
}

template <typename CharT> zelStringDef<CharT>& zelStringDef<CharT>::MakeLower() noexcept {
    std::transform(this->begin(), this->end(), this->begin(), LowerOf);
    return *this;
}

template <typename CharT> zelStringDef<CharT>& zelStringDef<CharT>::Trim(bool bBothEnds) noexcept {
    // npos + 1 is 0: a text of nothing but blanks becomes empty.
    this->resize(this->find_last_not_of(XmlBlanks) + 1);
    if (bBothEnds) {
        this->erase(0, this->find_first_not_of(XmlBlanks));
    }
    return *this;
}

template <typename CharT> zelStringDef<CharT> zelStringDef<CharT>::Left(int length) const {
    return this->substr(0, static_cast<std::size_t>(std::max(length, 0)));
}

template <typename CharT>
std::size_t zelStringDef<CharT>::ReplaceStr(const zelStringDef& find, const zelStringDef& replacement) {
    std::size_t found = find.empty() ? Base::npos : Base::find(find);
    if (found == Base::npos) {
        return 0;
    }
    // Built beside the text: replacing in place would move the rest once for each hit.
    Base replaced;
    std::size_t count = 0;
    std::size_t copied = 0;
    for (; found != Base::npos; found = Base::find(find, copied)) {
        replaced.append(*this, copied, found - copied).append(replacement);
        copied = found + find.size();
        ++count;
    }
    replaced.append(*this, copied);
    this->swap(replaced);
    return count;
}

template class zelStringDef<char>;
