#pragma once

#include <optional>
#include <string>

#include "Framework/ContainerBase/FoundProblem.h"

namespace Framework {

/// The attributes by which a node of an override says how it is to be merged.
inline constexpr const char* featureAttribute = "FeatureID";
inline constexpr const char* actionAttribute = "MergeAction";
inline constexpr const char* placementFeatureAttribute = "PlacementFeature";
inline constexpr const char* placementIndexAttribute = "PlacementIndex";
inline constexpr const char* placementOrderAttribute = "PlacementOrder";

/// What a node of an override is to the tree it is merged into: not every word has a meaning everywhere.
enum class ControlSite {
    Root,
    Child,
    KeyedEntry,
    PlainEntry,
    NewPart, ///< below a node that is loaded as a whole: nothing is there yet that a word could act on
    Value,   ///< an element with one value, which is taken whatever it carries
};

enum class MergeAction { Merge, Add, Replace, Remove, Clear };
enum class PlacementOrder { Unsaid, First, Last, Before, After };

/// What a node asks for. With a problem it asks for what cannot be done at its site, and the rest means nothing.
struct MergeControl {
    MergeAction action = MergeAction::Merge;
    PlacementOrder order = PlacementOrder::Unsaid;
    std::string neighbour;                 ///< key of the entry to stand before or behind
    std::string neighbourFeature;          ///< the feature it must belong to, in the form of FeatureOrBase; empty: any
    NodeRef neighbourAt = NodeRef::None;   ///< the attribute that names the neighbour
    NodeRef featureAt = NodeRef::None;     ///< the attribute that names its feature
    std::optional<FoundProblem> problem{}; ///< names the word and the words that exist

    bool NeedsNeighbour() const { return order == PlacementOrder::Before || order == PlacementOrder::After; }
};

MergeControl ReadControl(const XmlTree& tree, NodeRef node, ControlSite site);

/// Why the action cannot be done with what is there, if it cannot. `what` names it: "entry", "child".
std::optional<FoundProblem> ActionProblem(MergeAction action, bool isThere, const char* what);

/// What belongs to no feature belongs to the base.
inline std::string FeatureOrBase(const std::string& feature) {
    return feature.empty() ? "Base" : feature;
}

} // namespace Framework
