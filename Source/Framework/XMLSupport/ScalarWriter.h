#pragma once

#include "Framework/XMLSupport/TreeEditor.h"

#include <span>
#include <stdexcept>
#include <string_view>

namespace Framework {

struct WrapperState;

/// As what a text is read: two texts that read alike are the same value.
enum class ValueKind : std::uint8_t { Text, Bool, Int, Double };

bool ReadsAlike(ValueKind kind, std::string_view left, std::string_view right);

/// A node could not be written; the text says which and why.
class EditError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What a field knows of its node, so that it is written exactly where it is read.
struct FieldHint {
    std::string_view name;
    bool isAttribute = false;
    TextForm form = TextForm::Text;
    ValueKind kind = ValueKind::Text;
    std::string_view absent{};                 ///< what an absent node reads as
    std::span<const std::string_view> order{}; ///< the element names of the class in the order of its fields
    std::size_t position = 0;                  ///< of this one in it
};

// Both write only when the text that stands there reads otherwise, and put the parsed text back in its own shape when
// that reads as the new one. They throw EditError and WriteError, with nothing changed.

/// Writes an element or attribute that is there.
void WriteNode(WrapperState& wrapper, NodeRef node, std::string_view text, TextForm form, ValueKind kind);

/// Writes a field of `parent`: into `present`, its node, or when that is None into a new one, which is only made for a
/// value that its absence does not give already. One that was added goes again when the value no longer needs it.
void WriteField(WrapperState& wrapper, NodeRef parent, NodeRef present, const FieldHint& hint, std::string_view text);

} // namespace Framework
