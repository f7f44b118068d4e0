#include "MessageCodes.h"

#include "Framework/Finding.h"

namespace Lanedoc {

std::vector<MessageCode> AllMessageCodes() {
    std::vector<MessageCode> codes;
    for (const FindingCode code : AllFindingCodes()) {
        codes.push_back({FindingName(code), FindingExplanation(code)});
    }
    codes.insert(codes.end(),
                 {
                     {Codes::notReadable, "A file cannot be read."},
                     {Codes::notWellFormed, "A text is no well-formed XML, or more of it than the limits allow."},
                     {Codes::unknownRoot, "No class of the library has this root element."},
                     {Codes::otherRoot, "The root element of an override is not that of the base."},
                     {Codes::danglingName, "A value names something that the document does not have."},
                     {Codes::conflict, "Two features give one value differently, or one removes what another edits."},
                     {Codes::noEffect, "An edit changes nothing, or a later feature undoes it."},
                 });
    return codes;
}

} // namespace Lanedoc
