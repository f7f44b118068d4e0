#pragma once

#include "Framework/XMLSupport/DocumentData.h"

#include <string>

namespace Framework {

/// The document's bytes in its own encoding. What was not changed since it was parsed is copied byte for byte, so an
/// unchanged document gives the bytes it came from; changed texts, values and added nodes are written anew in between,
/// with line ends as the document has them and references for characters that its encoding lacks. Throws WriteError
/// when the result would not load again. Takes linear time.
std::string WriteDocument(const DocumentData& data);

} // namespace Framework
