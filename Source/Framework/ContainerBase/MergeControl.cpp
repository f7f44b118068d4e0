#include "Framework/ContainerBase/MergeControl.h"

#include "Framework/ContainerBase/ContainerAccess.h"
#include "Framework/XMLSupport/TreeReading.h"

namespace Framework {

std::string UnsupportedControl(const XmlTree& tree, NodeRef node) {
    for (const char* const name :
         {actionAttribute, placementOrderAttribute, placementIndexAttribute, placementFeatureAttribute}) {
        const NodeRef attribute = FindAttribute(tree, node, name);
        if (attribute == NodeRef::None) {
            continue;
        }
        const std::string word = TextOf(tree, attribute);
        if (name != actionAttribute || word != "Merge") {
            return std::string(name) + "=\"" + word +
                   "\" is not supported yet, expected MergeAction=\"Merge\" or no control attribute";
        }
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
