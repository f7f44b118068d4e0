#pragma once

#include "Framework/XMLSupport/DocumentData.h"
#include "Framework/XMLSupport/ParseError.h"

#include <expat.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace Framework {

class DocumentBuilder;

/// What is said to a document type, which is refused wherever it stands.
inline constexpr const char* kNoDoctype = "a document type (DOCTYPE) is not allowed: expected the root element";

/// A refusal at a place of the document's text.
ParseError ErrorAt(const DocumentData& data, std::size_t offset, const std::string& message);

/// What the parser reports, in words of our own: at the place where a person would look, with what was expected there.
ParseError ParserError(const DocumentData& data, const DocumentBuilder& builder, XML_Error code, std::size_t offset);

} // namespace Framework
