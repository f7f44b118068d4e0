#include "Target.h"

namespace Fuzz {

const std::vector<Target>& Targets() {
    static const std::vector<Target> targets{{"Load", &Load}, {"Merge", &Merge}, {"Paths", &Paths}};
    return targets;
}

} // namespace Fuzz
