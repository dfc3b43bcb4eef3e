#pragma once

#include "protocol/WireOrder.h"

#include <cstdint>

namespace protocol::driverList {

// Whose drivers a list contains, and in which form.
inline constexpr std::uint8_t ofBrand = 1;
inline constexpr std::uint8_t shortOfModel = 2; // in ShortDriverRecords
inline constexpr std::uint8_t ofModel = 3;

} // namespace protocol::driverList

namespace protocol {

// One uploaded driver package of a model.
struct DriverRecord {
    std::string driverId;
    wire::WideString version; // may end in a wire date between parentheses
    wire::WideString comment;
    std::string uploadDate; // a wire date
    wire::WideString uploadedBy;
    std::uint8_t inUse = 0; // 0 or '0' no, 1 or '1' yes

    static constexpr auto fields =
        wireOrder(field("driverId", &DriverRecord::driverId), field("version", &DriverRecord::version),
                  field("comment", &DriverRecord::comment), field("uploadDate", &DriverRecord::uploadDate),
                  field("uploadedBy", &DriverRecord::uploadedBy), field("inUse", &DriverRecord::inUse));

    bool operator==(const DriverRecord&) const = default;
};

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

// Asks for the drivers of a brand or of a model.
struct ListDriversRequest {
    static constexpr std::uint16_t opcode = 12;

    std::uint8_t listKind = 0; // a driverList
    std::string parentId;      // the brand, or the model

    static constexpr auto fields =
        wireOrder(field("listKind", &ListDriversRequest::listKind), field("parentId", &ListDriversRequest::parentId));

    bool operator==(const ListDriversRequest&) const = default;
};

// Removes a driver from the catalogue.
struct DeleteDriverRequest {
    static constexpr std::uint16_t opcode = 13;

    std::string driverId;

    static constexpr auto fields = wireOrder(field("driverId", &DeleteDriverRequest::driverId));

    bool operator==(const DeleteDriverRequest&) const = default;
};

// Gives a model the driver that comes with the operating system.
struct AddBuiltInDriverRequest {
    static constexpr std::uint16_t opcode = 47;

    std::string modelId;

    static constexpr auto fields = wireOrder(field("modelId", &AddBuiltInDriverRequest::modelId));

    bool operator==(const AddBuiltInDriverRequest&) const = default;
};

// Makes another model an alternate of a model, so that its drivers can be used too.
struct AddAlternateDriverRequest {
    static constexpr std::uint16_t opcode = 48;

    std::string modelId;
    std::string alternateModelId;

    static constexpr auto fields = wireOrder(field("modelId", &AddAlternateDriverRequest::modelId),
                                             field("alternateModelId", &AddAlternateDriverRequest::alternateModelId));

    bool operator==(const AddAlternateDriverRequest&) const = default;
};

// Removes an alternate from a model.
struct RemoveAlternateDriverRequest {
    static constexpr std::uint16_t opcode = 49;

    std::string modelId;
    std::string alternateModelId;

    static constexpr auto fields =
        wireOrder(field("modelId", &RemoveAlternateDriverRequest::modelId),
                  field("alternateModelId", &RemoveAlternateDriverRequest::alternateModelId));

    bool operator==(const RemoveAlternateDriverRequest&) const = default;
};

} // namespace protocol
