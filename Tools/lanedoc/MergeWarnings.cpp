#include "MergeWarnings.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "LostParts.h"
#include "NearestName.h"
#include "Output.h"

namespace Lanedoc {

namespace {

bool IsAside(const LostPart& part) {
    return part.kind == LostPart::Kind::Comment || part.kind == LostPart::Kind::Instruction;
}

/// What is the matter with a part; `fate` is what becomes of it.
std::string Described(const LostPart& part, const std::string& fate) {
    const std::string count = std::to_string(part.count);
    if (IsAside(part)) {
        const std::string what = part.kind == LostPart::Kind::Comment ? "comment" : "processing instruction";
        return part.count == 1 ? "a " + what + " " + fate : count + " " + what + "s " + fate + ", the first is here";
    }
    const std::string what = part.kind == LostPart::Kind::Element     ? "element " + part.name + " in "
                             : part.kind == LostPart::Kind::Attribute ? "attribute " + part.name + " of "
                                                                      : "text in ";
    return "the " + what + part.owner + " is no field and " + fate +
           (part.count == 1 ? "" : " (" + count + " times, first here)") +
           (part.near.empty() ? "" : "; " + DidYouMean(part.near));
}

void Warn(const Source& source, const std::vector<LostPart>& parts, const std::string& fate) {
    std::size_t told = 0;
    std::size_t more = 0;
    for (const LostPart& part : parts) {
        if (told == mostWarnings) {
            more += part.count;
            continue;
        }
        ++told;
        Say(Printable(source.Name() + ":" + std::to_string(part.line) + ":" + std::to_string(part.column) +
                      ": warning: " + Described(part, fate)));
    }
    if (more > 0) {
        Say(Printable(source.Name() + ": warning: and " + std::to_string(more) + " more"));
    }
}

/// What any element of an override may carry, and what tells other programs about it.
bool MayStandInOverride(const LostPart& part) {
    constexpr std::array<std::string_view, 5> words = {"FeatureID", "MergeAction", "PlacementOrder", "PlacementIndex",
                                                       "PlacementFeature"};
    return IsAside(part) || (part.kind == LostPart::Kind::Attribute &&
                             (std::find(words.begin(), words.end(), part.name) != words.end() ||
                              part.name.starts_with("xmlns") || part.name.starts_with("xsi:")));
}

std::vector<LostPart> PartsOf(Source& source) {
    return FindLostParts(std::string(source.Document().GetXMLText()), source.Class());
}

} // namespace

void WarnOfLossesIn(Source& base) {
    Warn(base, PartsOf(base), "will not be in the result");
}

void WarnOfUnknownIn(Source& change) {
    std::vector<LostPart> parts = PartsOf(change);
    std::erase_if(parts, MayStandInOverride);
    Warn(change, parts, "is passed over");
}

} // namespace Lanedoc
