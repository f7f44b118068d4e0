#pragma once

#include <string>

#include "Framework/Finding.h"

namespace Lanedoc {

/// `file:line:column:`, as far as they are known, fit for a terminal; empty when nothing is.
std::string PlaceText(const DocumentPlace& place);

/// A refusal of the library in its parts, `file:line:column: text` or `file: text`.
struct LocatedText {
    DocumentPlace place;
    std::string text;
};

/// Takes a refusal apart that concerns the document of that name, which also takes the place of the name that texts
/// have in the library.
LocatedText ReadPlace(const std::string& refusal, const std::string& name);

} // namespace Lanedoc
