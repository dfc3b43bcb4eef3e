#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Something that an event can lead to.
struct AlarmActionRecord {
    std::uint16_t code = 0;
    wire::WideString name;
    bool flag = false; // needs a destination

    static constexpr auto fields =
        wireOrder(field("code", &AlarmActionRecord::code), field("name", &AlarmActionRecord::name),
                  field("flag", &AlarmActionRecord::flag));

    bool operator==(const AlarmActionRecord&) const = default;
};

} // namespace protocol
