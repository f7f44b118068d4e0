#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace Framework {

inline std::string ReadText(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot read " + path.string());
    }
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

inline void WriteText(const std::filesystem::path& path, const std::string& text) {
    if (!(std::ofstream(path, std::ios::binary) << text).flush()) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

} // namespace Framework
