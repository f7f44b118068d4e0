#pragma once

#include <string>
#include <string_view>

namespace Fuzz {

/// A document changed by a few steps that leave it well-formed: elements deleted and doubled, attributes and fields of
/// their class put in, values replaced. Bytes changed at random seldom get past the parser; these do. The text itself
/// when it does not load. The same number gives the same change.
std::string MutateXml(std::string_view document, unsigned seed);

} // namespace Fuzz
