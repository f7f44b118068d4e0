#pragma once

#include <string>
#include <string_view>

namespace Framework {

/// The first thing in the text that no XML 1.0 document can hold, as people call it: "character U+0001", "byte 0xFF".
/// Empty when there is none.
std::string DescribeForbidden(std::string_view text);

/// True for a name that the parser takes, colons included. Cheap for names in ASCII.
bool IsXmlName(std::string_view name);

/// True only for text that stands as it is between tags and in double quotes: printable ASCII without "&", "<", ">" and
/// the quote. Quicker than to look for them.
bool NeedsNoEscape(std::string_view text);

// These append text that reads back exactly as given. What DescribeForbidden finds must not be in it.

/// Text between tags. Line ends stay as they are, a CR becomes a reference.
void AppendEscapedText(std::string& xml, std::string_view text);

/// The value of an attribute, for these quotes around it; tab and line ends become references.
void AppendEscapedAttribute(std::string& xml, std::string_view value, char quote = '"');

/// A CDATA section. What cannot stand in one closes it and a new one is opened behind: "]]>" is divided, a CR stands
/// between the two as a reference. So the first and the last node are always sections.
void AppendCData(std::string& xml, std::string_view text);

} // namespace Framework
