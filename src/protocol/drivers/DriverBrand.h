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

// Asks for all brands; it has no fields.
struct ListDriverBrandsRequest {
    static constexpr std::uint16_t opcode = 4;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListDriverBrandsRequest&) const = default;
};

} // namespace protocol
