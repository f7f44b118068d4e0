#pragma once

#include "Framework/XMLSupport/ElementPlace.h"
#include "Framework/XMLSupport/XmlTree.h"

#include <optional>
#include <string>
#include <string_view>

namespace Framework {

/// How an element's text is read: all that stands directly in it, or what its CDATA sections span.
enum class TextForm : std::uint8_t { Text, CData };

/// One write access to a tree, as XmlTree is one read access. Texts must be such as XML can hold, names XML names.
/// When an operation throws (std::bad_alloc, WriteError) the tree is as it was.
class TreeEditor {
public:
    virtual ~TreeEditor() = default;

    /// The text goes where the first of the replaced ones stood, before all else where none did; the others go. It is
    /// written as CDATA where one of the replaced was, or when it is read as CDATA. Elements, comments and instructions
    /// stay.
    virtual void SetText(NodeRef element, std::string_view text, TextForm form) = 0;
    virtual void SetValue(NodeRef attribute, std::string_view value) = 0;
    /// Behind the other attributes. The element must not have one of that name.
    virtual void AddAttribute(NodeRef element, std::string_view name, std::string_view value) = 0;
    virtual void AddElement(const ElementPlace& place, std::string_view name, std::string_view text, TextForm form) = 0;

    // What a tree may remember of itself, so that a value that returns to what it was leaves no trace.

    /// What an element's text or an attribute's value was when it was parsed; nothing when that did not change. The
    /// view points into the tree, until that is changed, or into `room`.
    virtual std::optional<std::string_view> Parsed(NodeRef, TextForm, std::string& /*room*/) const {
        return std::nullopt;
    }
    /// Puts it back, in the very shape it had.
    virtual void Restore(NodeRef) {}
    /// True for what AddElement and AddAttribute made.
    virtual bool IsAdded(NodeRef) const { return false; }
    /// Takes away what was added, with the blanks that came with it.
    virtual void Remove(NodeRef) {}

protected:
    TreeEditor() = default;
    TreeEditor(const TreeEditor&) = default;
    TreeEditor& operator=(const TreeEditor&) = default;
};

} // namespace Framework
