#pragma once

#include "protocol/PrinterRecord.h"
#include "protocol/WireOrder.h"

namespace protocol {

// Makes a printer, a queue, a follow-print queue or a local printer.
struct CreateRecordRequest {
    static constexpr std::uint16_t opcode = 9;

    std::string physicalPrinterId; // of a queue, else empty
    PrinterRecord record;

    static constexpr auto fields = wireOrder(field("physicalPrinterId", &CreateRecordRequest::physicalPrinterId),
                                             field("record", &CreateRecordRequest::record));

    bool operator==(const CreateRecordRequest&) const = default;
};

} // namespace protocol
