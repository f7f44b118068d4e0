#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "Framework/FrameworkExport.h"
#include "Framework/ZelString.h"

/// What can be wrong with a document or an override beyond being well-formed. The names that FindingName gives are
/// stable: scripts may compare them.
enum class FindingCode {
    UnknownElement,       ///< an element that no field of the class names; it is passed over
    UnknownAttribute,     ///< an attribute that no field of the class names; it is passed over
    StrayText,            ///< text directly in an element that holds no text; it is passed over
    RepeatedValue,        ///< an element with one value, or a child, that stands more than once
    DuplicateKey,         ///< an entry whose key another entry of the same list and document has
    MissingKey,           ///< an entry of a keyed list without its key attribute
    UnknownWord,          ///< a text outside the vocabulary of an enumeration; it is read as none of its words
    NotANumber,           ///< a text that is no number; it is read as 0
    NumberOutOfRange,     ///< a number that its field cannot hold; it is read as the nearest limit
    NotABool,             ///< a text that is no truth value; it is read as false
    UnknownControlWord,   ///< a word of MergeAction or PlacementOrder that does not exist
    MisplacedControlWord, ///< a control word that has no meaning where it stands, or contradicts another one
    MissingTarget,        ///< Replace, Remove or Clear of what is not there
    TargetExists,         ///< Add of what is there
    MissingNeighbour,     ///< a placement beside an entry that is not there, or that belongs to another feature
    NotLoaded,            ///< an entry that could not be loaded, or an override of which nothing could be merged
    OtherIssue,           ///< what a host's class, or a class of the library, reported to the override log by itself
};

/// The stable name of a code, as in "unknown-element"; lives as long as the library. Any thread may ask.
FRAMEWORK_API std::string_view FindingName(FindingCode code);
/// One sentence about a code, for lists; lives as long as the library.
FRAMEWORK_API std::string_view FindingExplanation(FindingCode code);
/// All codes, in order.
FRAMEWORK_API std::span<const FindingCode> AllFindingCodes();

/// A place in a document, as messages name it.
struct FRAMEWORK_API DocumentPlace {
    zelString File;          ///< empty when it is not known
    unsigned int Line = 0;   ///< from 1; 0 when it is not known, as in a DOM
    unsigned int Column = 0; ///< in code points, from 1; 0 when it is not known
    unsigned int Length = 0; ///< code points that the thing takes in its line, for an underline; 0 when not known

    bool IsKnown() const { return Line > 0; }
};

/// One thing that is wrong, told in a way that a person can act on. A value: it owns all its texts.
struct FRAMEWORK_API Finding {
    /// Another place that belongs to it, such as the first of two.
    struct Note {
        DocumentPlace Place;
        zelString Text;
    };

    FindingCode Code = FindingCode::OtherIssue;
    DocumentPlace Place;         ///< where the offending element or attribute begins
    zelString Path;              ///< to it, below the object that was merged or the root that was checked
    zelString Text;              ///< what is wrong and what was expected, without place, path and code
    std::vector<zelString> Near; ///< known names that may have been meant, nearest first, at most three
    std::vector<Note> Notes;
};
