#pragma once

#include "protocol/PrinterRecord.h"
#include "protocol/WireOrder.h"

namespace protocol {

// Replaces a printer record as a whole.
struct UpdateRecordRequest {
    static constexpr std::uint16_t opcode = 10;

    PrinterRecord record;

    static constexpr auto fields = wireOrder(field("record", &UpdateRecordRequest::record));

    bool operator==(const UpdateRecordRequest&) const = default;
};

} // namespace protocol
