#pragma once

#include "protocol/WireOrder.h"

#include <cstdint>

// Which of the models of a report a list asks for.
namespace protocol::modelListKind {

constexpr std::uint16_t all = 0;
constexpr std::uint16_t working = 1; // with a driver
constexpr std::uint16_t missing = 2; // unknown, or without a driver

} // namespace protocol::modelListKind

namespace protocol {

// A printer model that a report has found.
struct InventoryModelRecord {
    wire::WideString modelName;
    bool modelExists = false;  // the system knows the model
    bool driverExists = false; // the system has a driver for it
    std::int32_t queueCount = 0;
    std::int32_t clientCount = 0;
    std::string modelId; // empty when the model is unknown

    static constexpr auto fields = wireOrder(
        field("modelName", &InventoryModelRecord::modelName), field("modelExists", &InventoryModelRecord::modelExists),
        field("driverExists", &InventoryModelRecord::driverExists),
        field("queueCount", &InventoryModelRecord::queueCount),
        field("clientCount", &InventoryModelRecord::clientCount), field("modelId", &InventoryModelRecord::modelId));

    bool operator==(const InventoryModelRecord&) const = default;
};

// Lists the printer models that a report has found.
struct ListInventoryModelsRequest {
    static constexpr std::uint16_t opcode = 43;

    std::uint16_t listKind = 0; // one of modelListKind
    std::string id;             // of the report

    static constexpr auto fields = wireOrder(field("listKind", &ListInventoryModelsRequest::listKind),
                                             field("id", &ListInventoryModelsRequest::id));

    bool operator==(const ListInventoryModelsRequest&) const = default;
};

} // namespace protocol
