#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Deletes an affected user or group.
struct DeleteAffectedRequest {
    static constexpr std::uint16_t opcode = 60;
    static constexpr std::string_view form = "action 3 deletes";
    static constexpr std::array<std::uint8_t, 1> actions = {3};

    std::uint8_t action = 3;
    std::string id;

    static constexpr auto fields =
        wireOrder(field("action", &DeleteAffectedRequest::action), field("id", &DeleteAffectedRequest::id));

    bool operator==(const DeleteAffectedRequest&) const = default;
};

} // namespace protocol
