#pragma once

#include "protocol/WireOrder.h"

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

} // namespace protocol
