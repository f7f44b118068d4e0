#pragma once

#include <string>

#include "Framework/XMLSupport/XmlTree.h"

namespace Framework {

/// The attributes by which a node of an override says how it is to be merged.
inline constexpr const char* featureAttribute = "FeatureID";
inline constexpr const char* actionAttribute = "MergeAction";
inline constexpr const char* placementFeatureAttribute = "PlacementFeature";
inline constexpr const char* placementIndexAttribute = "PlacementIndex";
inline constexpr const char* placementOrderAttribute = "PlacementOrder";

/// What the node asks for beyond the default action, ready for an error text; empty when it asks for nothing else. Such
/// a node is refused: merging it as if it had not asked would be wrong in silence.
std::string UnsupportedControl(const XmlTree& tree, NodeRef node);

} // namespace Framework
