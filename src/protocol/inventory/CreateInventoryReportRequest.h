#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Makes an inventory report.
struct CreateInventoryReportRequest {
    static constexpr std::uint16_t opcode = 41;

    wire::WideString reportUser;
    wire::WideString reportName;
    wire::WideString comment;
    wire::WideString dateFrom; // wire dates; empty for no limit
    wire::WideString dateTo;
    std::string ipScope;
    std::uint16_t reportType = 0; // one of protocol::reportType

    static constexpr auto fields = wireOrder(field("reportUser", &CreateInventoryReportRequest::reportUser),
                                             field("reportName", &CreateInventoryReportRequest::reportName),
                                             field("comment", &CreateInventoryReportRequest::comment),
                                             field("dateFrom", &CreateInventoryReportRequest::dateFrom),
                                             field("dateTo", &CreateInventoryReportRequest::dateTo),
                                             field("ipScope", &CreateInventoryReportRequest::ipScope),
                                             field("reportType", &CreateInventoryReportRequest::reportType));

    bool operator==(const CreateInventoryReportRequest&) const = default;
};

} // namespace protocol
