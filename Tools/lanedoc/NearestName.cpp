#include "NearestName.h"

#include <algorithm>

#include "Output.h"

namespace Lanedoc {

std::string DidYouMean(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        text += i == 0 ? "did you mean " : i + 1 == names.size() ? " or " : ", ";
        text += Printable(names[i]);
    }
    return text.empty() ? text : text + "?";
}

std::string JoinNames(const std::vector<std::string>& names, std::size_t limit) {
    std::string text;
    for (std::size_t i = 0; i < std::min(names.size(), limit); ++i) {
        text += (i == 0 ? "" : ", ") + Printable(names[i]);
    }
    return names.size() > limit ? text + " and " + std::to_string(names.size() - limit) + " more" : text;
}

} // namespace Lanedoc
