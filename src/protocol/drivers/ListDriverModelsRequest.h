#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for models of a brand, or for the alternates of a model.
struct ListDriverModelsRequest {
    static constexpr std::uint16_t opcode = 5;

    std::uint8_t listKind = 0; // a driverModelList
    std::string parentId;      // the brand, or the model

    static constexpr auto fields = wireOrder(field("listKind", &ListDriverModelsRequest::listKind),
                                             field("parentId", &ListDriverModelsRequest::parentId));

    bool operator==(const ListDriverModelsRequest&) const = default;
};

} // namespace protocol
