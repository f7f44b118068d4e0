#pragma once

#include <vector>

#include "Message.h"
#include "Source.h"

namespace Lanedoc {

/// What a dump of the document will not hold because no field names it, a warning for each kind of thing.
std::vector<Message> LossesIn(Source& base);

} // namespace Lanedoc
