#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// An inventory report: what a run over the old estate was asked to collect, and when.
struct InventoryReportRecord {
    std::string reportId;
    wire::WideString reportDate;
    wire::WideString reportUser;
    wire::WideString reportName;
    wire::WideString comment;
    wire::WideString ipScope;     // empty for all addresses
    std::uint16_t reportType = 0; // one of protocol::reportType

    static constexpr auto fields = wireOrder(
        field("reportId", &InventoryReportRecord::reportId), field("reportDate", &InventoryReportRecord::reportDate),
        field("reportUser", &InventoryReportRecord::reportUser),
        field("reportName", &InventoryReportRecord::reportName), field("comment", &InventoryReportRecord::comment),
        field("ipScope", &InventoryReportRecord::ipScope), field("reportType", &InventoryReportRecord::reportType));

    bool operator==(const InventoryReportRecord&) const = default;
};

} // namespace protocol
