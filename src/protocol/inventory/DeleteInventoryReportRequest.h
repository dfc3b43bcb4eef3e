#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Deletes an inventory report with all that it found.
struct DeleteInventoryReportRequest {
    static constexpr std::uint16_t opcode = 42;

    std::string reportId;

    static constexpr auto fields = wireOrder(field("reportId", &DeleteInventoryReportRequest::reportId));

    bool operator==(const DeleteInventoryReportRequest&) const = default;
};

} // namespace protocol
