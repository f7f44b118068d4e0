#pragma once

#include "Failure.h"
#include "Message.h"

namespace Lanedoc {

/// Ends a command because of a document that it cannot use; the message tells why.
class InputFailure : public Failure {
public:
    explicit InputFailure(Message message);
    const Message& Told() const { return m_message; }

private:
    Message m_message;
};

} // namespace Lanedoc
