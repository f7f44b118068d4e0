#include "MessageCodes.h"

#include "Framework/Finding.h"

namespace Lanedoc {

std::vector<MessageCode> AllMessageCodes() {
    std::vector<MessageCode> codes;
    for (const FindingCode code : AllFindingCodes()) {
        codes.push_back({FindingName(code), SeverityOf(code), FindingExplanation(code)});
    }
    codes.insert(
        codes.end(),
        {
            {Codes::notReadable, Severity::Error, "A file cannot be read."},
            {Codes::notWellFormed, Severity::Error,
             "A document is no well-formed XML, or passes a limit of what is loaded."},
            {Codes::unknownRoot, Severity::Error, "No class of the library has this root element."},
            {Codes::otherRoot, Severity::Error, "The root element of an override is not that of the base."},
            {Codes::danglingName, Severity::Warning, "A value names something that the document does not have."},
            {Codes::lostComment, Severity::Warning, "A comment of the base will not be in the merged document."},
            {Codes::lostInstruction, Severity::Warning,
             "A processing instruction of the base will not be in the merged document."},
            {Codes::conflict, Severity::Warning,
             "Two features give one value differently, or one removes what another edits."},
        });
    return codes;
}

} // namespace Lanedoc
