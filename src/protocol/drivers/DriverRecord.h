#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// One uploaded driver package of a model.
struct DriverRecord {
    std::string driverId;
    wire::WideString version; // may end in a wire date between parentheses
    wire::WideString comment;
    std::string uploadDate; // a wire date; local once a console has received it
    wire::WideString uploadedBy;
    std::uint8_t inUse = 0; // 0 or '0' no, 1 or '1' yes

    static constexpr auto fields =
        wireOrder(field("driverId", &DriverRecord::driverId), field("version", &DriverRecord::version),
                  field("comment", &DriverRecord::comment), field("uploadDate", &DriverRecord::uploadDate),
                  field("uploadedBy", &DriverRecord::uploadedBy), field("inUse", &DriverRecord::inUse));

    bool operator==(const DriverRecord&) const = default;
};

} // namespace protocol
