#pragma once

#include "protocol/WireOrder.h"

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

} // namespace protocol
