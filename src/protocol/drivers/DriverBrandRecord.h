#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A maker of printers.
struct DriverBrandRecord {
    std::string brandId;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("brandId", &DriverBrandRecord::brandId), field("name", &DriverBrandRecord::name));

    bool operator==(const DriverBrandRecord&) const = default;
};

} // namespace protocol
