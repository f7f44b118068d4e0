#include "Framework/ContainerBase/FieldSteps.h"

#include <algorithm>
#include <charconv>

namespace Framework {

std::vector<std::string_view> StepsOf(std::string_view path) {
    std::vector<std::string_view> steps;
    bool isQuoted = false;
    std::size_t begin = 0;
    for (std::size_t at = 0; at < path.size(); ++at) {
        if (path[at] == '"') {
            isQuoted = !isQuoted; // a doubled one leaves and enters at once
        } else if (path[at] == '/' && !isQuoted) {
            steps.push_back(path.substr(begin, at - begin));
            begin = at + 1;
        }
    }
    if (!path.empty()) {
        steps.push_back(path.substr(begin));
    }
    return steps;
}

FieldStep ReadStep(std::string_view step) {
    FieldStep read;
    const std::size_t bracket = std::min(step.find('['), step.size());
    read.name = step.substr(0, bracket);
    std::string_view inside = step.substr(std::min(bracket + 1, step.size()));
    inside = inside.substr(0, inside.rfind(']'));
    const std::size_t equals = inside.find('=');
    if (equals == std::string_view::npos) {
        std::from_chars(inside.data(), inside.data() + inside.size(), read.position);
        return read;
    }
    read.keyName = inside.substr(0, equals);
    const std::string_view key = inside.substr(equals + 1);
    if (!key.starts_with('"')) {
        read.key = key;
        return read;
    }
    for (std::size_t at = 1; at + 1 < key.size(); ++at) {
        read.key += key[at];
        at += key[at] == '"' ? 1U : 0U;
    }
    return read;
}

} // namespace Framework
