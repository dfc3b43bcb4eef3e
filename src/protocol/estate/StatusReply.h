#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// The server's word on a change: a message box to show as it stands, or an empty caption when nothing went wrong.
struct StatusReply {
    wire::WideString caption;
    wire::WideString text;
    std::uint32_t style = 0; // of a message box of the platform

    static constexpr auto fields = wireOrder(field("caption", &StatusReply::caption), field("text", &StatusReply::text),
                                             field("style", &StatusReply::style));

    bool operator==(const StatusReply&) const = default;
};

} // namespace protocol
