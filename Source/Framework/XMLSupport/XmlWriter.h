#pragma once

#include "Framework/XMLSupport/XmlTree.h"

#include <stdexcept>
#include <string>

namespace Framework {

/// What a tree holds cannot stand in an XML document; the text names the element and what is wrong there.
class WriteError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct WriteOptions {
    /// `<?xml version="1.0" encoding="UTF-8"?>` and a line end before the rest.
    bool declaration = true;
    /// Elements that hold elements, comments and instructions only are laid out in lines, two blanks per level. White
    /// space that stood between those goes. Where any other text stands, nothing is added or taken, and below neither.
    bool indent = false;
};

/// The subtree as XML 1.0 text in UTF-8, the document with a line end behind. Throws WriteError: nothing is returned
/// that would not load again and read the same, but for neighbouring texts that become one, line ends in comments and
/// instructions that read as LF, and blanks at the start of an instruction's data.
///
/// `top` is the document, an element, or one of its children. Takes linear time and no stack, however deep the tree.
std::string WriteXml(const XmlTree& tree, NodeRef top, const WriteOptions& options = {});

} // namespace Framework
