#include "LimitOption.h"

#include <array>
#include <charconv>
#include <string_view>
#include <vector>

#include "Framework/LoadLimits.h"
#include "NearestName.h"

namespace Lanedoc {

namespace {

struct CountedLimit {
    std::string_view name;
    std::size_t LoadLimits::*member;
};

// By the names that the library's refusals give them.
constexpr std::array countedLimits = {
    CountedLimit{"bytes", &LoadLimits::bytes},
    CountedLimit{"depth", &LoadLimits::depth},
    CountedLimit{"attributesPerElement", &LoadLimits::attributesPerElement},
    CountedLimit{"bytesPerTag", &LoadLimits::bytesPerTag},
    CountedLimit{"nodes", &LoadLimits::nodes},
    CountedLimit{"memory", &LoadLimits::memory},
};
constexpr std::string_view secondsName = "cpuSeconds";

template <typename Number> Number Read(std::string_view text, const std::string& whole) {
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < 0) {
        throw CLI::ValidationError("--limit " + whole, "expected a number or \"none\" behind \"=\"");
    }
    return number;
}

std::string UnknownName(const std::string& name) {
    std::vector<std::string> names{std::string(secondsName)};
    for (const CountedLimit& limit : countedLimits) {
        names.emplace_back(limit.name);
    }
    const std::vector<std::string> nearest = NearestNames(name, names);
    return "no such limit; " + (nearest.empty() ? "expected one of " + JoinNames(names, 100) : DidYouMean(nearest));
}

void Set(LoadLimits& limits, const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) {
        throw CLI::ValidationError("--limit " + text, "expected NAME=NUMBER or NAME=none");
    }
    const std::string name = text.substr(0, equals);
    const std::string_view value = std::string_view(text).substr(equals + 1);
    const bool isLifted = value == "none";
    if (name == secondsName) {
        limits.cpuSeconds = isLifted ? LoadLimits::None().cpuSeconds : Read<double>(value, text);
        return;
    }
    for (const CountedLimit& limit : countedLimits) {
        if (limit.name == name) {
            limits.*limit.member = isLifted ? LoadLimits::None().*limit.member : Read<std::size_t>(value, text);
            return;
        }
    }
    throw CLI::ValidationError("--limit " + text, UnknownName(name));
}

} // namespace

void AddLimitOption(CLI::App& tool) {
    tool.add_option_function<std::vector<std::string>>(
            "--limit",
            [](const std::vector<std::string>& texts) {
                LoadLimits limits = LoadLimits::Default();
                for (const std::string& text : texts) {
                    Set(limits, text);
                }
                LoadLimits::SetDefault(limits);
            },
            "Raise or lower a limit of what is loaded; the message of a refusal names it. \"none\" lifts it")
        ->type_name("NAME=NUMBER")
        ->allow_extra_args(false);
}

std::string WithLimitOption(std::string text) {
    constexpr std::string_view opening = "raise LoadLimits::";
    constexpr std::string_view closing = " with LoadLimits::Scope or SetDefault";
    const std::size_t begin = text.rfind(opening);
    const std::size_t end = text.rfind(closing);
    if (begin == std::string::npos || end == std::string::npos || end < begin) {
        return text;
    }
    const std::size_t nameBegin = begin + opening.size();
    const std::string name = text.substr(nameBegin, end - nameBegin);
    return text.replace(begin, end + closing.size() - begin, "raise it with --limit " + name + "=NUMBER");
}

} // namespace Lanedoc
