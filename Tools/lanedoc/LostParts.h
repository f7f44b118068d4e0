#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "Framework/ContainerCatalog.h"

namespace Lanedoc {

/// What stands in a document and in no field of its classes: no load takes it over, and no dump writes it. Parts that
/// are alike (the same name at the same class) are told as one.
struct LostPart {
    enum class Kind { Element, Attribute, Text, Comment, Instruction };

    Kind kind = Kind::Element;
    std::string name;              ///< of an element or attribute
    std::string owner;             ///< the element in which it stands; empty for comments and instructions
    std::vector<std::string> near; ///< names of fields that may have been meant
    std::size_t count = 0;
    std::size_t line = 0;   ///< of the first, from 1
    std::size_t column = 0; ///< in characters, from 1
};

/// Finds them in the bytes of a document that is known to be well-formed and without a DOCTYPE; in their order, each at
/// its first place. What stands in an unknown element goes with it and is not told. Takes time in proportion to the
/// document.
std::vector<LostPart> FindLostParts(std::string_view bytes, CatalogClass root);

} // namespace Lanedoc
