#include "PlaceText.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <string_view>
#include <system_error>

#include "LimitOption.h"
#include "Output.h"
#include "Source.h"

namespace Lanedoc {

std::string PlaceText(const DocumentPlace& place) {
    std::string text = Printable(place.File);
    for (const unsigned int number : {place.Line, place.Column}) {
        if (number == 0) {
            break;
        }
        text += (text.empty() ? "" : ":") + std::to_string(number);
    }
    return text.empty() ? text : text + ":";
}

LocatedText ReadPlace(const std::string& refusal, const std::string& name) {
    std::string named = WithLimitOption(refusal);
    if (named.starts_with(nameOfTexts)) {
        named.replace(0, nameOfTexts.size(), name);
    }
    LocatedText located;
    located.place.File = name;
    std::string_view rest = named;
    if (named.starts_with(name + ":")) {
        rest.remove_prefix(name.size() + 1);
        for (unsigned int* const number : {&located.place.Line, &located.place.Column}) {
            unsigned int read = 0;
            const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), read);
            if (error != std::errc() || end == rest.data() + rest.size() || *end != ':') {
                break;
            }
            *number = read;
            rest.remove_prefix(static_cast<std::size_t>(end - rest.data()) + 1);
        }
        rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    }
    located.text = rest;
    return located;
}

} // namespace Lanedoc
