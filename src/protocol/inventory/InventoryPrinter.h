#pragma once

#include "protocol/WireOrder.h"

#include <cstdint>

// Which printers of a report a list asks for, and in which order.
namespace protocol::foundListKind {

constexpr std::uint16_t byIp = 0;               // printers and queues
constexpr std::uint16_t byModel = 1;            // printers and queues
constexpr std::uint16_t byName = 2;             // printers and queues
constexpr std::uint16_t localByWorkstation = 3; // local printers
constexpr std::uint16_t localByModel = 4;       // local printers

} // namespace protocol::foundListKind

namespace protocol {

// A printer or queue of the old estate, with the system's own printer and the plan for it. Fields without a match are
// empty.
struct InventoryPrinterRecord {
    std::string entryId;
    wire::WideString windowsName;
    std::string printerIp;
    std::string printerPort;
    wire::WideString location;
    wire::WideString comment;
    std::uint32_t clientCount = 0;
    wire::WideString model;
    wire::WideString mappedPrinterName;
    std::string mappedPrinterId;
    wire::WideString mappedQueueName;
    std::string mappedQueueId;
    wire::WideString workstation; // on which it was found
    wire::WideString migrationPlan;
    wire::WideString migrationAction;
    wire::WideString spare; // a console ignores it

    static constexpr auto fields = wireOrder(
        field("entryId", &InventoryPrinterRecord::entryId), field("windowsName", &InventoryPrinterRecord::windowsName),
        field("printerIp", &InventoryPrinterRecord::printerIp),
        field("printerPort", &InventoryPrinterRecord::printerPort),
        field("location", &InventoryPrinterRecord::location), field("comment", &InventoryPrinterRecord::comment),
        field("clientCount", &InventoryPrinterRecord::clientCount), field("model", &InventoryPrinterRecord::model),
        field("mappedPrinterName", &InventoryPrinterRecord::mappedPrinterName),
        field("mappedPrinterId", &InventoryPrinterRecord::mappedPrinterId),
        field("mappedQueueName", &InventoryPrinterRecord::mappedQueueName),
        field("mappedQueueId", &InventoryPrinterRecord::mappedQueueId),
        field("workstation", &InventoryPrinterRecord::workstation),
        field("migrationPlan", &InventoryPrinterRecord::migrationPlan),
        field("migrationAction", &InventoryPrinterRecord::migrationAction),
        field("spare", &InventoryPrinterRecord::spare));

    bool operator==(const InventoryPrinterRecord&) const = default;
};

// Lists the printers and queues that a report has found.
struct ListInventoryPrintersRequest {
    static constexpr std::uint16_t opcode = 44;

    std::uint16_t listKind = 0; // one of foundListKind
    std::string id;             // of a report, or a text to filter by

    static constexpr auto fields = wireOrder(field("listKind", &ListInventoryPrintersRequest::listKind),
                                             field("id", &ListInventoryPrintersRequest::id));

    bool operator==(const ListInventoryPrintersRequest&) const = default;
};

} // namespace protocol
