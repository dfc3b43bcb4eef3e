#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// The outcome of a change: a message box to show unchanged, or an empty caption for success.
struct StatusReply {
    wire::WideString caption;
    wire::WideString text;
    std::uint32_t style = 0; // of a message box of the platform

    static constexpr auto fields = wireOrder(field("caption", &StatusReply::caption), field("text", &StatusReply::text),
                                             field("style", &StatusReply::style));

    bool operator==(const StatusReply&) const = default;
};

} // namespace protocol
