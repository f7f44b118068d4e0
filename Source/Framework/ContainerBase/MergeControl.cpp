#include "Framework/ContainerBase/MergeControl.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>
#include <vector>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/NearestNames.h"
#include "Framework/XMLSupport/TreeReading.h"

namespace Framework {

namespace {

constexpr std::array actionWords = {"Merge", "Add", "Replace", "Remove", "Clear"}; // in the order of MergeAction
constexpr std::array orderWords = {"First", "Last", "Before", "After"}; // in the order of PlacementOrder, from First

/// A control attribute as it is written.
struct Word {
    const char* attribute;
    NodeRef node = NodeRef::None; ///< None when it is not there
    std::string text{};

    bool IsThere() const { return node != NodeRef::None; }
    std::string Written() const { return std::string(attribute) + "=\"" + text + "\""; }
};

struct Words {
    Word action{actionAttribute};
    Word order{placementOrderAttribute};
    Word index{placementIndexAttribute};
    Word feature{placementFeatureAttribute};
};

Words WordsOf(const XmlTree& tree, NodeRef node) {
    Words words;
    for (NodeRef attribute = tree.FirstAttribute(node); attribute != NodeRef::None;
         attribute = tree.NextSibling(attribute)) {
        const std::string_view name = tree.Name(attribute);
        for (Word* const word : {&words.action, &words.order, &words.index, &words.feature}) {
            if (name == word->attribute) {
                word->node = attribute;
                word->text = TextOf(tree, attribute);
            }
        }
    }
    return words;
}

using Found = std::optional<FoundProblem>;

Found Unknown(const Word& word, const std::string& why, std::span<const char* const> known) {
    return FoundProblem{FindingCode::UnknownControlWord, word.Written() + why, word.node,
                        NearestNames(word.text, {known.begin(), known.end()})};
}

Found Misplaced(const Word& word, const std::string& why) {
    return FoundProblem{FindingCode::MisplacedControlWord, word.Written() + why, word.node};
}

/// "Merge, Add or Clear"
std::string Listed(std::span<const char* const> words) {
    std::string list;
    for (std::size_t i = 0; i < words.size(); ++i) {
        list += i == 0 ? "" : i + 1 == words.size() ? " or " : ", ";
        list += words[i];
    }
    return list;
}

const char* NameOf(ControlSite site) {
    switch (site) {
    case ControlSite::Root:
        return "the root of an override";
    case ControlSite::Child:
        return "a child";
    case ControlSite::KeyedEntry:
        return "an entry of a keyed list";
    case ControlSite::PlainEntry:
        return "an entry of a list without keys";
    case ControlSite::NewPart:
        return "what is loaded as part of something new";
    case ControlSite::Value:
        return "a single value, which is taken all the same";
    }
    return "";
}

bool IsPossible(MergeAction action, ControlSite site) {
    switch (site) {
    case ControlSite::Root:
        return action != MergeAction::Add && action != MergeAction::Remove;
    case ControlSite::Child:
        return action != MergeAction::Add;
    case ControlSite::KeyedEntry:
        return true;
    case ControlSite::PlainEntry:
    case ControlSite::NewPart:
        return action == MergeAction::Merge || action == MergeAction::Add;
    case ControlSite::Value:
        return action == MergeAction::Merge;
    }
    return false;
}

std::vector<const char*> PossibleActions(ControlSite site) {
    std::vector<const char*> words;
    for (std::size_t i = 0; i < actionWords.size(); ++i) {
        if (IsPossible(static_cast<MergeAction>(i), site)) {
            words.push_back(actionWords[i]);
        }
    }
    return words;
}

/// Takes the action over; what is wrong with it, if anything.
Found TakeAction(const Words& words, ControlSite site, MergeControl& control) {
    if (!words.action.IsThere()) {
        return {};
    }
    const auto found = std::find(actionWords.begin(), actionWords.end(), words.action.text);
    const bool isWord = found != actionWords.end();
    control.action = isWord ? static_cast<MergeAction>(std::distance(actionWords.begin(), found)) : MergeAction::Merge;
    if (isWord && IsPossible(control.action, site)) {
        return {};
    }
    const std::vector<const char*> possible = PossibleActions(site);
    const std::string where = std::string(NameOf(site)) + ", expected " + Listed(possible);
    return isWord ? Misplaced(words.action, " is not possible on " + where)
                  : Unknown(words.action, " is no such word on " + where, possible);
}

/// Takes the placement over; what is wrong with it, if anything.
Found TakePlacement(const Words& words, ControlSite site, MergeControl& control) {
    const Word& first = words.order.IsThere() ? words.order : words.index.IsThere() ? words.index : words.feature;
    if (!first.IsThere()) {
        return {};
    }
    if (site != ControlSite::KeyedEntry) {
        return Misplaced(first, std::string(" is not possible on ") + NameOf(site) +
                                    ", only on an entry that is merged into a keyed list");
    }
    if (control.action == MergeAction::Remove) {
        return Misplaced(first, " contradicts " + words.action.Written());
    }
    if (words.order.IsThere()) {
        const auto found = std::find(orderWords.begin(), orderWords.end(), words.order.text);
        if (found == orderWords.end()) {
            return Unknown(first, " is no such word, expected " + Listed(orderWords), orderWords);
        }
        control.order = static_cast<PlacementOrder>(std::distance(orderWords.begin(), found) + 1);
    }
    const std::string lonely =
        std::string(" has no meaning without ") + placementOrderAttribute + "=\"Before\" or \"After\"";
    if (control.NeedsNeighbour() != words.index.IsThere()) {
        return control.NeedsNeighbour() ? Misplaced(first, std::string(" names no neighbour, expected its key as ") +
                                                               placementIndexAttribute)
                                        : Misplaced(words.index, lonely);
    }
    if (!control.NeedsNeighbour() && words.feature.IsThere()) {
        return Misplaced(words.feature, lonely);
    }
    control.neighbour = words.index.text;
    control.neighbourAt = words.index.node;
    control.featureAt = words.feature.node;
    control.neighbourFeature = words.feature.IsThere() ? FeatureOrBase(words.feature.text) : "";
    return {};
}

} // namespace

MergeControl ReadControl(const XmlTree& tree, NodeRef node, ControlSite site) {
    MergeControl control;
    if (tree.FirstAttribute(node) == NodeRef::None) {
        return control;
    }
    const Words words = WordsOf(tree, node);
    control.problem = TakeAction(words, site, control);
    if (!control.problem.has_value()) {
        control.problem = TakePlacement(words, site, control);
    }
    return control;
}

Found ActionProblem(MergeAction action, bool isThere, const char* what) {
    const bool needsIt =
        action == MergeAction::Replace || action == MergeAction::Remove || action == MergeAction::Clear;
    const auto written = [action] {
        return std::string(actionAttribute) + "=\"" + actionWords[static_cast<std::size_t>(action)] + "\": ";
    };
    if (needsIt && !isThere) {
        return FoundProblem{FindingCode::MissingTarget, written() + "there is no such " + what};
    }
    if (action == MergeAction::Add && isThere) {
        return FoundProblem{FindingCode::TargetExists, written() + "the " + what + " is there already"};
    }
    return {};
}

namespace {

/// The attribute of the node that the wrapper stands on.
zelString ControlWord(XMLDataWrapper* pData, const char* name) {
    return pData == nullptr ? zelString() : pData->GetStringValue("@" + zelString(name), false);
}

} // namespace

} // namespace Framework

using namespace Framework;

zelString TypedDataContainer::GetFeatureID(XMLDataWrapper* pData) {
    return ControlWord(pData, featureAttribute);
}

zelString TypedDataContainer::GetMergeAction(XMLDataWrapper* pData) {
    return ControlWord(pData, actionAttribute);
}

zelString TypedDataContainer::GetPlacementFeature(XMLDataWrapper* pData) {
    return ControlWord(pData, placementFeatureAttribute);
}

zelString TypedDataContainer::GetPlacementIndex(XMLDataWrapper* pData) {
    return ControlWord(pData, placementIndexAttribute);
}

zelString TypedDataContainer::GetPlacementOrder(XMLDataWrapper* pData) {
    return ControlWord(pData, placementOrderAttribute);
}
