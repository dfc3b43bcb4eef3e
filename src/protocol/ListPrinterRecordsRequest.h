#pragma once

#include "protocol/PrinterListMode.h"
#include "protocol/WireOrder.h"

namespace protocol {

// Asks for printers, queues, follow-print queues or local printers.
struct ListPrinterRecordsRequest {
    static constexpr std::uint16_t opcode = 6;

    std::string printerId; // or empty
    std::int32_t regionId = 0;
    std::uint16_t mode = 0; // a printerListMode

    static constexpr auto fields = wireOrder(field("printerId", &ListPrinterRecordsRequest::printerId),
                                             field("regionId", &ListPrinterRecordsRequest::regionId),
                                             field("mode", &ListPrinterRecordsRequest::mode));

    bool operator==(const ListPrinterRecordsRequest&) const = default;
};

} // namespace protocol
