#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "Framework/LoadLimits.h"

namespace Framework {

/// A tag that a limit forbids.
struct ForbiddenTag {
    enum class Reason { TooLong, TooManyAttributes };
    Reason reason;
    std::size_t offset; ///< of the tag, or of the first attribute that is too much
};

/// Goes through the text of a document from markup to markup, ahead of the parser. It knows where a piece for the
/// parser may end without cutting a token in two (in a text anywhere but in a reference), and sees tags that would cost
/// the parser too much: the parser keeps a whole tag, with all its attributes, before it tells of it.
///
/// Of text that is not well-formed it may take the wrong view, but no more than the parser refuses it for.
class TagScanner {
public:
    TagScanner(std::string_view text, const LoadLimits& limits);

    /// Whether the text may hold a forbidden tag, for those who want to know no more. Looks at little of a text whose
    /// tags all stand close to each other.
    bool MayStop() const;

    /// Goes on to the first beginning of a markup at or behind the offset, or into a long text there, else to the end
    /// of the text, or stops at a forbidden tag. Returns where it stands.
    std::size_t GoTo(std::size_t offset);
    /// It stopped in a comment, instruction, section or reference that does not end: what follows is worth nothing, and
    /// the parser need not keep it.
    bool IsCut() const { return m_isCut; }
    /// The tag at which it stopped.
    const std::optional<ForbiddenTag>& Forbidden() const { return m_forbidden; }

private:
    std::size_t EndOfMarkup(std::size_t begin);
    std::size_t Behind(std::string_view delimiter, std::size_t from);
    std::size_t CutOfText(std::size_t begin, std::size_t offset, std::size_t end);
    std::size_t EndOfTag(std::size_t begin, std::size_t end) const;
    std::optional<ForbiddenTag> ForbiddenIn(std::size_t begin, std::size_t end) const;

    std::string_view m_text;
    const LoadLimits& m_limits;
    std::size_t m_neverForbidden;
    std::size_t m_at = 0;
    std::size_t m_nextMarkup = 0; ///< the next '<', where that is not before m_at
    std::optional<ForbiddenTag> m_forbidden;
    bool m_isCut = false;
};

} // namespace Framework
