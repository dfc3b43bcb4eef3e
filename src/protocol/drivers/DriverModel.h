#pragma once

#include "protocol/WireOrder.h"

#include <cstdint>

namespace protocol::driverModelList {

// What a list of models is for, which decides what it contains.
inline constexpr std::uint8_t ofBrand = 0;       // for the tree: the hidden ones too
inline constexpr std::uint8_t forDialogs = 1;    // of a brand, to choose the model of a printer or a queue from
inline constexpr std::uint8_t alternates = 2;    // of a model
inline constexpr std::uint8_t forAlternates = 3; // of a brand, to choose an alternate from

} // namespace protocol::driverModelList

namespace protocol {

// A printer model of a brand.
struct DriverModelRecord {
    std::string modelId;
    wire::WideString name;
    bool visible = false; // false: set invisible

    static constexpr auto fields =
        wireOrder(field("modelId", &DriverModelRecord::modelId), field("name", &DriverModelRecord::name),
                  field("visible", &DriverModelRecord::visible));

    bool operator==(const DriverModelRecord&) const = default;
};

// Asks for models of a brand, or for the alternates of a model.
struct ListDriverModelsRequest {
    static constexpr std::uint16_t opcode = 5;

    std::uint8_t listKind = 0; // a driverModelList
    std::string parentId;      // the brand, or the model

    static constexpr auto fields = wireOrder(field("listKind", &ListDriverModelsRequest::listKind),
                                             field("parentId", &ListDriverModelsRequest::parentId));

    bool operator==(const ListDriverModelsRequest&) const = default;
};

// Adds a model to a brand.
struct AddDriverModelRequest {
    static constexpr std::uint16_t opcode = 46;

    std::string brandId;
    wire::WideString name;

    static constexpr auto fields =
        wireOrder(field("brandId", &AddDriverModelRequest::brandId), field("name", &AddDriverModelRequest::name));

    bool operator==(const AddDriverModelRequest&) const = default;
};

// Shows or hides a model.
struct SetDriverModelVisibleRequest {
    static constexpr std::uint16_t opcode = 20;

    std::uint8_t visible = 0; // 1 shows, 0 hides
    std::string modelId;

    static constexpr auto fields = wireOrder(field("visible", &SetDriverModelVisibleRequest::visible),
                                             field("modelId", &SetDriverModelVisibleRequest::modelId));

    bool operator==(const SetDriverModelVisibleRequest&) const = default;
};

// Sets the byte order in which a model reports its counters.
struct SetModelOctetOrderRequest {
    static constexpr std::uint16_t opcode = 75;

    std::uint32_t octetOrder = 0; // 0 default, 1 normal, 2 swapped
    std::string modelId;

    static constexpr auto fields = wireOrder(field("octetOrder", &SetModelOctetOrderRequest::octetOrder),
                                             field("modelId", &SetModelOctetOrderRequest::modelId));

    bool operator==(const SetModelOctetOrderRequest&) const = default;
};

// Asks for the byte order in which a model reports its counters.
struct GetModelOctetOrderRequest {
    static constexpr std::uint16_t opcode = 77;

    std::string modelId;

    static constexpr auto fields = wireOrder(field("modelId", &GetModelOctetOrderRequest::modelId));

    bool operator==(const GetModelOctetOrderRequest&) const = default;
};

// The byte order in which a model reports its counters.
struct GetModelOctetOrderReply {
    std::uint32_t octetOrder = 0; // 0 default, 1 normal, 2 swapped

    static constexpr auto fields = wireOrder(field("octetOrder", &GetModelOctetOrderReply::octetOrder));

    bool operator==(const GetModelOctetOrderReply&) const = default;
};

} // namespace protocol
