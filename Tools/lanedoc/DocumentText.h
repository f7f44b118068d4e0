#pragma once

#include <string>
#include <string_view>

namespace Lanedoc {

/// The text of a document in UTF-8, without a byte order mark, from the bytes that a file holds. The document is known
/// to load; what cannot be converted comes back as it is.
std::string DocumentText(std::string_view bytes);

} // namespace Lanedoc
