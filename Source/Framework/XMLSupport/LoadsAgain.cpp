#include "Framework/XMLSupport/LoadsAgain.h"

#include <algorithm>

#include "Framework/LoadLimits.h"
#include "Framework/XMLSupport/TagScanner.h"
#include "Framework/XMLSupport/TextEncoding.h"
#include "Framework/XMLSupport/TextPlaces.h"
#include "Framework/XMLSupport/XmlWriter.h"

namespace Framework {

void CheckSizeLoadsAgain(std::size_t bytes, const std::string& what) {
    const std::size_t most = std::min(LoadLimits::Current().bytes, kMostDocumentBytes);
    if (bytes > most) {
        throw WriteError("cannot write " + what + ": it would have " + std::to_string(bytes) +
                         " bytes, more than the " + std::to_string(most) + " that can be loaded again");
    }
}

void CheckTagsLoadAgain(std::string_view text, const std::string& what) {
    const LoadLimits limits = LoadLimits::Current();
    TagScanner scanner(text, limits);
    if (!scanner.MayStop()) {
        return;
    }
    const std::size_t begin = scanner.GoTo(text.size());
    if (!scanner.Forbidden().has_value()) {
        return;
    }
    const std::string_view tag = text.substr(begin);
    const std::string name(tag.substr(1, std::min(tag.find_first_of(" \t\r\n/>"), std::size_t{81}) - 1));
    const bool isTooLong = scanner.Forbidden()->reason == ForbiddenTag::Reason::TooLong;
    throw WriteError("cannot write " + what + ": the tag of " + name + " in line " +
                     std::to_string(PlaceIn(text, begin).line) + " would have more than the " +
                     (isTooLong ? std::to_string(limits.bytesPerTag) + " bytes"
                                : std::to_string(limits.attributesPerElement) + " attributes") +
                     " that can be loaded again");
}

} // namespace Framework
