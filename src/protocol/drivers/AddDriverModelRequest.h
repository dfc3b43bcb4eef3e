#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Makes a model of a brand.
struct AddDriverModelRequest {
    static constexpr std::uint16_t opcode = 46;

    std::string brandId;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("brandId", &AddDriverModelRequest::brandId), field("name", &AddDriverModelRequest::name));

    bool operator==(const AddDriverModelRequest&) const = default;
};

} // namespace protocol
