#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Lanedoc {

/// The root element of a document, as its bytes have it.
struct RootElement {
    std::string name;
    std::size_t line = 0;   ///< from 1; 0 when there is no root
    std::size_t column = 0; ///< of its start tag, in characters, from 1
};

/// The text in UTF-8 when it is UTF-16, which its first bytes tell: a mark, or a "<" beside a zero.
std::string AsUtf8(std::string_view bytes);

/// Finds the root in a document that is known to be well-formed and without a DOCTYPE, in UTF-8, UTF-16 or an encoding
/// that agrees with ASCII.
RootElement FindRootElement(std::string_view bytes);

} // namespace Lanedoc
