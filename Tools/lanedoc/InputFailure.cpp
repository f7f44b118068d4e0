#include "InputFailure.h"

#include <utility>

#include "Output.h"
#include "PlaceText.h"

namespace Lanedoc {

namespace {

std::string AsLine(const Message& message) {
    const std::string help = message.help.empty() ? "" : "; " + message.help;
    return PlaceText(message.place) + " error: " + Printable(message.text + help);
}

} // namespace

InputFailure::InputFailure(Message message)
    : Failure(ExitCode::BadInput, AsLine(message)), m_message(std::move(message)) {}

} // namespace Lanedoc
