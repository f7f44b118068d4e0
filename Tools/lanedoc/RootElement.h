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

/// Finds the root in the bytes of a document that is known to be well-formed and without a DOCTYPE.
RootElement FindRootElement(std::string_view bytes);

} // namespace Lanedoc
