#pragma once

#include "protocol/StatusReply.h"
#include "server/Estate.h"
#include "server/ReplyBuffer.h"
#include "server/RequestReader.h"

#include <functional>
#include <optional>

namespace server {

// A change that was asked for, and what to tell the console about it.
struct Change {
    bool isAnswered = false; // the console waits for the outcome
    // Makes it in one transaction, or refuses. Never throws: an error of the database becomes a refusal.
    std::function<protocol::StatusReply(Estate&, ReplyBuffer&)> make;
};

// The change that a request asks for; nothing when the opcode stands for none. Throws BadRequest.
[[nodiscard]] std::optional<Change> prepareChange(std::uint16_t opcode, std::span<const std::uint8_t> fields);

} // namespace server
