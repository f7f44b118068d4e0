#include "Place.h"

#include "PlaceText.h"
#include "Source.h"

namespace Lanedoc {

DocumentPlace AsNamed(DocumentPlace place) {
    if (place.File == nameOfTexts) {
        place.File = std::string(nameOfInput);
    }
    return place;
}

std::string PlaceName(const DocumentPlace& place) {
    std::string text = PlaceText(place);
    text.resize(text.size() - (text.empty() ? 0 : 1));
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
