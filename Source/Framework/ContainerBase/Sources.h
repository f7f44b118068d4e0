#pragma once

#include <memory>

#include "Framework/TypedDataContainer.h"
#include "Framework/XMLSupport/WrapperState.h"

/// The sources that a load or merge takes its XML from, each as a loaded wrapper. On failure null, and the object's
/// last error says what is wrong.
namespace Framework {

std::unique_ptr<XMLDataWrapper> OpenFile(TypedDataContainer& object, const char* path, bool readOnly);
/// A copy of the element and what stands in it.
std::unique_ptr<XMLDataWrapper> OpenDomNode(TypedDataContainer& object, DOMNode* node, bool readOnly);
std::unique_ptr<XMLDataWrapper> OpenTemplate(TypedDataContainer& object, const char* store, const char* xmlName,
                                             bool readOnly);
std::unique_ptr<XMLDataWrapper> OpenModel(TypedDataContainer& object, const char* model, const char* xmlName,
                                          bool readOnly);

/// Where an object of that element name starts in a document: the node that is stood on, the root, or the first element
/// that bears the name.
NodeRef StartNode(const WrapperState& state, NodeRef standing, const zelString& name);
/// The error for a source in which no such element stands.
void SetNoElementError(TypedDataContainer& object, const WrapperState& state, const zelString& name);
/// The FeatureID of the source's root, else the given text.
zelString FeatureOf(const XMLDataWrapper& source, const zelString& otherwise);

} // namespace Framework
