#pragma once

#include <string>

#include "Framework/Finding.h"
#include "JsonValue.h"

namespace Lanedoc {

/// The place with the name that the person gave the document: texts that the library was handed, as standard input is,
/// have one of its own there.
DocumentPlace AsNamed(DocumentPlace place);

/// `file:line:col`, printable, the parts that are known.
std::string PlaceText(const DocumentPlace& place);

/// `file`, `line`, `column` and `length`, null where they are not known.
Json JsonOf(const DocumentPlace& place);

} // namespace Lanedoc
