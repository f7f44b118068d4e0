#include "Place.h"

#include "Output.h"
#include "Source.h"

namespace Lanedoc {

DocumentPlace AsNamed(DocumentPlace place) {
    if (place.File == nameOfTexts) {
        place.File = std::string(nameOfInput);
    }
    return place;
}

std::string PlaceText(const DocumentPlace& place) {
    std::string text = Printable(place.File);
    for (const unsigned int number : {place.Line, place.Column}) {
        if (number == 0) {
            break;
        }
        text += (text.empty() ? "" : ":") + std::to_string(number);
    }
    return text;
}

Json JsonOf(const DocumentPlace& place) {
    const auto known = [](unsigned int number) { return number == 0 ? Json() : Json(number); };
    Json json;
    json["file"] = place.File.empty() ? Json() : Json(static_cast<const std::string&>(place.File));
    json["line"] = known(place.Line);
    json["column"] = known(place.Column);
    json["length"] = known(place.Length);
    return json;
}

} // namespace Lanedoc
