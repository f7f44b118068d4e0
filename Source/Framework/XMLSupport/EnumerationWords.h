#pragma once

#include <span>
#include <vector>

#include "Framework/FrameworkExport.h"
#include "Framework/ZelString.h"

namespace Framework {

/// One row of a vocabulary: a word and the number it has in memory.
struct EnumerationWord {
    const char* text;
    int number;
};

/// What every enumeration class does with its vocabulary; the texts are those of the table, which is never freed.

/// The word of that number, the empty text when it has none.
FRAMEWORK_API const char* WordOf(std::span<const EnumerationWord> words, int number) noexcept;

/// The number of the first word that equals the text exactly, -1 when none does or the text is null.
FRAMEWORK_API int NumberOf(std::span<const EnumerationWord> words, const char* pText) noexcept;

/// Whether WordOf gives that text; null counts as the empty text.
FRAMEWORK_API bool IsWordOf(std::span<const EnumerationWord> words, int number, const char* pText) noexcept;

/// Appends every word, in the order of the table.
FRAMEWORK_API void AppendWords(std::span<const EnumerationWord> words, std::vector<zelString>& list);

} // namespace Framework
