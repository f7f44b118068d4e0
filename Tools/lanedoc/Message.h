#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Framework/Finding.h"
#include "JsonValue.h"

namespace Lanedoc {

enum class Severity { Error, Warning };

/// One thing that a person is told about a document. Texts may come from it as they are: whoever prints them makes them
/// printable.
struct Message {
    struct Note {
        DocumentPlace place{};
        std::string text{};
    };

    Severity severity = Severity::Error;
    std::string code{};    ///< a stable name, one of AllMessageCodes
    DocumentPlace place{}; ///< the file as the person named it
    std::string path{};    ///< of what is wrong, below the root; may be empty
    std::string text{};    ///< what is wrong and what was expected, without place and code
    std::vector<Note> notes{};
    std::string help{}; ///< the way out, in words that can be pasted; may be empty
};

/// `did you mean "A" or "B"?`, the way out where a name is wrong; empty when there is none.
std::string HelpWith(const std::vector<std::string>& names);

/// The finding with its way out.
Message MessageOf(const Finding& finding, Severity severity);

/// Error for what is dropped or read as something else than it says, warning for the rest.
Severity SeverityOf(FindingCode code);

/// "error" or "warning".
std::string_view SeverityName(Severity severity);

/// The message as one object. Places that are not known are null, an empty help is left out.
Json JsonOf(const Message& message);

} // namespace Lanedoc
