#pragma once

#include <string>

#include "Framework/Finding.h"
#include "JsonValue.h"

namespace Lanedoc {

/// The place with the name that the person gave the document: texts that the library was handed, as standard input is,
/// have one of its own there.
DocumentPlace AsNamed(DocumentPlace place);

/// PlaceText without the colon behind it: a place among other words.
std::string PlaceName(const DocumentPlace& place);

/// `file`, `line`, `column` and `length`, null where they are not known.
Json JsonOf(const DocumentPlace& place);

} // namespace Lanedoc
