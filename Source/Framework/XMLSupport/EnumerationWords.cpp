#include "Framework/XMLSupport/EnumerationWords.h"

#include <cstring>

#include "Framework/TypedDataEnumeration.h"

// Out of line, so that the class has its virtual table here and nowhere else.
TypedDataEnumeration::~TypedDataEnumeration() = default;

namespace Framework {

const char* WordOf(std::span<const EnumerationWord> words, int number) noexcept {
    for (const EnumerationWord& word : words) {
        if (word.number == number) {
            return word.text;
        }
    }
    return "";
}

int NumberOf(std::span<const EnumerationWord> words, const char* pText) noexcept {
    if (pText) {
        for (const EnumerationWord& word : words) {
            if (std::strcmp(word.text, pText) == 0) {
                return word.number;
            }
        }
    }
    return -1;
}

bool IsWordOf(std::span<const EnumerationWord> words, int number, const char* pText) noexcept {
    return std::strcmp(WordOf(words, number), pText ? pText : "") == 0;
}

void AppendWords(std::span<const EnumerationWord> words, std::vector<zelString>& list) {
    for (const EnumerationWord& word : words) {
        list.emplace_back(word.text);
    }
}

} // namespace Framework
