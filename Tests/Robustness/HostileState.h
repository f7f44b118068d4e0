#pragma once

#include "Containers/Sample.h"
#include "Containers/Values.h"
#include "Framework/ContainerBase/ContainerAccess.h"

#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace Robustness {

/// What a refused load or merge has to leave as it was: every value and every object, and all that lasts beside. Two
/// states are compared by `==`.
inline std::vector<std::string> StateOf(TypedDataContainer& object) {
    using Framework::ContainerAccess;
    std::vector<std::string> state = Samples::Lines(object);
    std::set<const void*> objects;
    for (const Value& value : ValuesOf(object)) {
        objects.insert(value.object);
    }
    std::ostringstream rest;
    for (const void* const each : objects) {
        rest << each << ' ';
    }
    XMLDataWrapper* const wrapper = object.GetContainedDataPtr();
    rest << object.Valid() << object.GetFeatureID() << '|' << object.GetMergeAttributes() << '|' << wrapper << '|'
         << ContainerAccess::IsReadOnly(object) << ContainerAccess::IsNested(object)
         << static_cast<std::size_t>(ContainerAccess::Node(object)) << '|' << ContainerAccess::Lookup(object);
    if (wrapper != nullptr) {
        rest << '|' << wrapper->HasCurrentNode() << wrapper->GetStoredQuery() << '|' << wrapper->GetXMLText();
    }
    state.push_back(rest.str());
    return state;
}

} // namespace Robustness
