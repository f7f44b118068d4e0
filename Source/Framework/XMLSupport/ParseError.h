#pragma once

#include "Framework/XMLSupport/TextPlaces.h"

#include <stdexcept>
#include <string>

namespace Framework {

/// A document that is refused: what() reads "source:line:column: what is wrong, what was expected".
class ParseError : public std::runtime_error {
public:
    ParseError(const std::string& sourceName, Place place, const std::string& message)
        : std::runtime_error(sourceName + ":" + std::to_string(place.line) + ":" + std::to_string(place.column) + ": " +
                             message),
          m_place(place), m_sourceLength(sourceName.size()), m_messageLength(message.size()) {}

    std::string SourceName() const { return std::string(what(), m_sourceLength); }
    Place Where() const noexcept { return m_place; }
    /// The sentence without source and place.
    std::string Message() const {
        const std::string whole = what();
        return whole.substr(whole.size() - m_messageLength);
    }

private:
    // Lengths and not texts: an exception must be copyable without allocating.
    Place m_place;
    std::size_t m_sourceLength;
    std::size_t m_messageLength;
};

} // namespace Framework
