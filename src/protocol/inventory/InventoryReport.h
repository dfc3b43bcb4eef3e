#pragma once

#include "protocol/WireOrder.h"

#include <cstdint>

// What an inventory report collects.
namespace protocol::reportType {

constexpr std::uint16_t all = 0;
constexpr std::uint16_t onlyMapped = 1; // to a printer of the system
constexpr std::uint16_t onlyLocal = 2;
constexpr std::uint16_t onlyShared = 3;

} // namespace protocol::reportType

namespace protocol {

// An inventory report: what a scan of the old estate was asked to collect, and when.
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

// Lists the inventory reports.
struct ListInventoryReportsRequest {
    static constexpr std::uint16_t opcode = 40;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListInventoryReportsRequest&) const = default;
};

// Creates an inventory report.
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

// Deletes an inventory report with all its findings.
struct DeleteInventoryReportRequest {
    static constexpr std::uint16_t opcode = 42;

    std::string reportId;

    static constexpr auto fields = wireOrder(field("reportId", &DeleteInventoryReportRequest::reportId));

    bool operator==(const DeleteInventoryReportRequest&) const = default;
};

} // namespace protocol
