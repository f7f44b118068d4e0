#pragma once

#include <string_view>
#include <vector>

#include "Message.h"

namespace Lanedoc {

/// A code that messages have, and what it stands for in one sentence.
struct MessageCode {
    std::string_view name;
    Severity severity; ///< unless an option or the way it was found says otherwise
    std::string_view explanation;
};

// What the tool finds by itself; the others are the library's findings.
namespace Codes {
constexpr std::string_view notReadable = "not-readable";
constexpr std::string_view notWellFormed = "not-well-formed";
constexpr std::string_view unknownRoot = "unknown-root";
constexpr std::string_view otherRoot = "other-root";
constexpr std::string_view danglingName = "dangling-name";
constexpr std::string_view lostComment = "lost-comment";
constexpr std::string_view lostInstruction = "lost-instruction";
constexpr std::string_view conflict = "conflict";
} // namespace Codes

/// All codes, the library's first.
std::vector<MessageCode> AllMessageCodes();

} // namespace Lanedoc
