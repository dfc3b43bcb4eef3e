#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Deletes a printer or a queue.
struct DeleteRecordRequest {
    static constexpr std::uint16_t opcode = 36;

    std::uint8_t type = 0; // 1 printer, 2 queue
    std::string id;

    static constexpr auto fields =
        wireOrder(field("type", &DeleteRecordRequest::type), field("id", &DeleteRecordRequest::id));

    bool operator==(const DeleteRecordRequest&) const = default;
};

} // namespace protocol
