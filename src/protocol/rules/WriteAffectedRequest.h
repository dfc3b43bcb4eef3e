#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Adds or changes an affected user or group. The fields of the record come in another order than in a reply, which has
// to stay.
struct WriteAffectedRequest {
    static constexpr std::uint16_t opcode = 60;
    static constexpr std::string_view form = "action 1 adds, 2 updates";
    static constexpr std::array<std::uint8_t, 2> actions = {1, 2};

    std::uint8_t action = 1;
    std::uint8_t equals = 1;
    std::string id;
    std::uint8_t type = 1;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("action", &WriteAffectedRequest::action), field("equals", &WriteAffectedRequest::equals),
                  field("id", &WriteAffectedRequest::id), field("type", &WriteAffectedRequest::type),
                  field("name", &WriteAffectedRequest::name));

    bool operator==(const WriteAffectedRequest&) const = default;
};

} // namespace protocol
