#pragma once

#include <string_view>
#include <vector>

#include "Framework/ZelString.h"

namespace Framework {

/// What the catalogue knows of an enumeration class.
struct VocabularyTable {
    std::string_view className;
    void (*words)(std::vector<zelString>& list); ///< appends the texts of the vocabulary
    int (*number)(const char* word);             ///< the number of a word
};

template <typename Enum> constexpr VocabularyTable VocabularyOf(std::string_view className) {
    return {className, &Enum::GetContainedValueList, [](const char* word) { return Enum(word).Value(); }};
}

} // namespace Framework
