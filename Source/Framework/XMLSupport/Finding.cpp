#include "Framework/Finding.h"

#include <array>

namespace {

struct CodeText {
    FindingCode code;
    std::string_view name;
    std::string_view explanation;
};

/// In the order of the codes, so that a code is the place of its texts.
constexpr std::array codeTexts = {
    CodeText{FindingCode::UnknownElement, "unknown-element",
             "No field of the class bears the name of the element; it is passed over."},
    CodeText{FindingCode::UnknownAttribute, "unknown-attribute",
             "No field of the class bears the name of the attribute; it is passed over."},
    CodeText{FindingCode::StrayText, "stray-text", "Text stands in an element that holds elements only."},
    CodeText{FindingCode::RepeatedValue, "repeated-value",
             "An element that holds one value, or a child, stands more than once."},
    CodeText{FindingCode::DuplicateKey, "duplicate-key",
             "Two entries of one list have the same key: a load drops the second, a merge takes both in turn."},
    CodeText{FindingCode::MissingKey, "missing-key", "An entry of a keyed list has no key attribute."},
    CodeText{FindingCode::UnknownWord, "unknown-word",
             "The text is no word of the vocabulary of its field, and is read as none."},
    CodeText{FindingCode::NotANumber, "not-a-number", "The text is no number and is read as 0."},
    CodeText{FindingCode::NumberOutOfRange, "number-out-of-range",
             "The number is beyond what its field can hold and is read as the nearest limit."},
    CodeText{FindingCode::NotABool, "not-a-bool", "The text is no truth value and is read as false."},
    CodeText{FindingCode::UnknownControlWord, "unknown-control-word",
             "MergeAction or PlacementOrder asks for what does not exist."},
    CodeText{FindingCode::MisplacedControlWord, "misplaced-control-word",
             "A control word has no meaning where it stands, or contradicts another one."},
    CodeText{FindingCode::MissingTarget, "missing-target",
             "An override replaces, removes or clears what is not there."},
    CodeText{FindingCode::TargetExists, "target-exists", "An override adds what is there already."},
    CodeText{FindingCode::MissingNeighbour, "missing-neighbour",
             "A placement names an entry that is not there, or belongs to another feature."},
    CodeText{FindingCode::NotLoaded, "not-loaded",
             "An entry could not be loaded, or nothing of an override could be merged."},
    CodeText{FindingCode::OtherIssue, "other-issue", "What a class reported to the override log by itself."},
};

constexpr auto allCodes = [] {
    std::array<FindingCode, codeTexts.size()> codes{};
    for (std::size_t i = 0; i < codes.size(); ++i) {
        codes[i] = codeTexts[i].code;
    }
    return codes;
}();

constexpr bool IsInOrder() {
    for (std::size_t i = 0; i < allCodes.size(); ++i) {
        if (static_cast<std::size_t>(allCodes[i]) != i) {
            return false;
        }
    }
    return static_cast<std::size_t>(FindingCode::OtherIssue) + 1 == allCodes.size();
}
static_assert(IsInOrder());

} // namespace

std::string_view FindingName(FindingCode code) {
    return codeTexts[static_cast<std::size_t>(code)].name;
}

std::string_view FindingExplanation(FindingCode code) {
    return codeTexts[static_cast<std::size_t>(code)].explanation;
}

std::span<const FindingCode> AllFindingCodes() {
    return allCodes;
}
