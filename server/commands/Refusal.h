#pragma once

#include "protocol/estate/StatusReply.h"

namespace server {

// The box that tells an administrator why a change was not made.
[[nodiscard]] protocol::StatusReply refusal(const wire::WideString& caption, const wire::WideString& text);

// A name within a sentence, on one line and not too long for a box.
[[nodiscard]] wire::WideString quoted(const wire::WideString& name);

// The answer to a change that was made.
[[nodiscard]] inline protocol::StatusReply done() {
    return {};
}

[[nodiscard]] inline bool isDone(const protocol::StatusReply& reply) {
    return reply.caption.empty();
}

} // namespace server
