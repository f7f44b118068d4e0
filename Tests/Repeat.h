#pragma once

#include <cstddef>
#include <string>
#include <string_view>

inline std::string Repeat(std::string_view piece, std::size_t times) {
    std::string text;
    text.reserve(piece.size() * times);
    while (times-- > 0) {
        text += piece;
    }
    return text;
}
