#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A driver in the short form of its list.
struct ShortDriverRecord {
    std::string driverId;
    wire::WideString version;
    wire::WideString comment;

    static constexpr auto fields =
        wireOrder(field("driverId", &ShortDriverRecord::driverId), field("version", &ShortDriverRecord::version),
                  field("comment", &ShortDriverRecord::comment));

    bool operator==(const ShortDriverRecord&) const = default;
};

} // namespace protocol
