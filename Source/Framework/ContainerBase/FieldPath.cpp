#include "Framework/FieldPath.h"

std::string FieldPath::KeyStep(std::string_view name, std::string_view keyName, std::string_view key) {
    std::string step(name);
    step.append("[").append(keyName).append("=");
    if (key.find_first_of("]/\"") == std::string_view::npos) {
        return step.append(key).append("]");
    }
    step += '"';
    for (const char character : key) {
        step.append(character == '"' ? 2U : 1U, character);
    }
    return step.append("\"]");
}

std::string FieldPath::PositionStep(std::string_view name, std::size_t position) {
    return std::string(name) + "[" + std::to_string(position) + "]";
}

std::string FieldPath::Join(std::string_view path, std::string_view step) {
    std::string joined(path);
    return joined.append(path.empty() || step.empty() ? "" : "/").append(step);
}
