#pragma once

#include <string>
#include <string_view>

namespace Fuzz {

/// An input with one of its documents changed by a few steps that leave it well-formed: elements deleted and doubled,
/// attributes and fields of their class put in, values replaced. Bytes changed at random seldom get past the parser;
/// these do. The input itself when that document does not load. The same number gives the same change.
std::string MutateDocument(std::string_view input, unsigned seed);

} // namespace Fuzz
