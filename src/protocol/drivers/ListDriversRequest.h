#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for the drivers of a brand or of a model.
struct ListDriversRequest {
    static constexpr std::uint16_t opcode = 12;

    std::uint8_t listKind = 0; // a driverList
    std::string parentId;      // the brand, or the model

    static constexpr auto fields =
        wireOrder(field("listKind", &ListDriversRequest::listKind), field("parentId", &ListDriversRequest::parentId));

    bool operator==(const ListDriversRequest&) const = default;
};

} // namespace protocol
