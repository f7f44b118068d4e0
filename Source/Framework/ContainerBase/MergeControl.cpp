#include "Framework/ContainerBase/MergeControl.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <span>

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/XMLSupport/TreeReading.h"

namespace Framework {

namespace {

constexpr std::array actionWords = {"Merge", "Add", "Replace", "Remove", "Clear"}; // in the order of MergeAction
constexpr std::array orderWords = {"First", "Last", "Before", "After"}; // in the order of PlacementOrder, from First

/// The control attributes as they are written.
struct Words {
    std::optional<std::string> action;
    std::optional<std::string> order;
    std::optional<std::string> index;
    std::optional<std::string> feature;
};

Words WordsOf(const XmlTree& tree, NodeRef node) {
    Words words;
    for (NodeRef attribute = tree.FirstAttribute(node); attribute != NodeRef::None;
         attribute = tree.NextSibling(attribute)) {
        const std::string_view name = tree.Name(attribute);
        if (name == actionAttribute) {
            words.action = TextOf(tree, attribute);
        } else if (name == placementOrderAttribute) {
            words.order = TextOf(tree, attribute);
        } else if (name == placementIndexAttribute) {
            words.index = TextOf(tree, attribute);
        } else if (name == placementFeatureAttribute) {
            words.feature = TextOf(tree, attribute);
        }
    }
    return words;
}

std::string Written(const char* name, const std::string& word) {
    return std::string(name) + "=\"" + word + "\"";
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

std::string PossibleActions(ControlSite site) {
    std::vector<const char*> words;
    for (std::size_t i = 0; i < actionWords.size(); ++i) {
        if (IsPossible(static_cast<MergeAction>(i), site)) {
            words.push_back(actionWords[i]);
        }
    }
    return Listed(words);
}

/// Takes the action over; what is wrong with it, if anything.
std::string TakeAction(const Words& words, ControlSite site, MergeControl& control) {
    if (!words.action.has_value()) {
        return {};
    }
    const auto found = std::find(actionWords.begin(), actionWords.end(), *words.action);
    const bool isWord = found != actionWords.end();
    control.action = isWord ? static_cast<MergeAction>(std::distance(actionWords.begin(), found)) : MergeAction::Merge;
    if (isWord && IsPossible(control.action, site)) {
        return {};
    }
    return Written(actionAttribute, *words.action) + (isWord ? " is not possible on " : " is no such word on ") +
           NameOf(site) + ", expected " + PossibleActions(site);
}

/// Takes the placement over; what is wrong with it, if anything.
std::string TakePlacement(const Words& words, ControlSite site, MergeControl& control) {
    const bool isPlaced = words.order.has_value() || words.index.has_value() || words.feature.has_value();
    if (!isPlaced) {
        return {};
    }
    const std::string written = words.order.has_value()   ? Written(placementOrderAttribute, *words.order)
                                : words.index.has_value() ? Written(placementIndexAttribute, *words.index)
                                                          : Written(placementFeatureAttribute, *words.feature);
    if (site != ControlSite::KeyedEntry) {
        return written + " is not possible on " + NameOf(site) + ", only on an entry that is merged into a keyed list";
    }
    if (control.action == MergeAction::Remove) {
        return written + " contradicts " + Written(actionAttribute, *words.action);
    }
    if (words.order.has_value()) {
        const auto found = std::find(orderWords.begin(), orderWords.end(), *words.order);
        if (found == orderWords.end()) {
            return written + " is no such word, expected " + Listed(orderWords);
        }
        control.order = static_cast<PlacementOrder>(std::distance(orderWords.begin(), found) + 1);
    }
    if (control.NeedsNeighbour() != words.index.has_value()) {
        return control.NeedsNeighbour()
                   ? written + " names no neighbour, expected its key as " + placementIndexAttribute
                   : Written(placementIndexAttribute, *words.index) + " has no meaning without " +
                         placementOrderAttribute + "=\"Before\" or \"After\"";
    }
    if (!control.NeedsNeighbour() && words.feature.has_value()) {
        return Written(placementFeatureAttribute, *words.feature) + " has no meaning without " +
               placementOrderAttribute + "=\"Before\" or \"After\"";
    }
    control.neighbour = words.index.value_or("");
    control.neighbourFeature = words.feature.has_value() ? FeatureOrBase(*words.feature) : "";
    return {};
}

} // namespace

MergeControl ReadControl(const XmlTree& tree, NodeRef node, ControlSite site) {
    const Words words = WordsOf(tree, node);
    MergeControl control;
    control.problem = TakeAction(words, site, control);
    if (control.problem.empty()) {
        control.problem = TakePlacement(words, site, control);
    }
    return control;
}

std::string ActionProblem(MergeAction action, bool isThere, const char* what) {
    const bool needsIt =
        action == MergeAction::Replace || action == MergeAction::Remove || action == MergeAction::Clear;
    const std::string written = Written(actionAttribute, actionWords[static_cast<std::size_t>(action)]);
    if (needsIt && !isThere) {
        return written + ": there is no such " + what;
    }
    return action == MergeAction::Add && isThere ? written + ": the " + what + " is there already" : std::string();
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
