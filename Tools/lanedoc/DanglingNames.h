#pragma once

#include <vector>

#include "Message.h"
#include "Source.h"

namespace Lanedoc {

/// The values of a document that name something in it, such as the initial state, where there is nothing of that name;
/// a warning each, since an override may still bring it. Only names of which the class leaves no doubt what they stand
/// for are followed; names of what other documents hold are not. Takes time in proportion to the document.
std::vector<Message> FindDanglingNames(Source& source);

} // namespace Lanedoc
