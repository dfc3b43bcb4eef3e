#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Where an action can go to, such as a recipient of mail.
struct AlarmDestinationRecord {
    std::string id;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("id", &AlarmDestinationRecord::id), field("name", &AlarmDestinationRecord::name));

    bool operator==(const AlarmDestinationRecord&) const = default;
};

} // namespace protocol
