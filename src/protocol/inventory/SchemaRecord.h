#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// A migration plan: what is to become of one printer of the old estate. A field of the old printer that is empty is not
// looked at.
struct SchemaRecord {
    wire::WideString creator;
    std::int32_t planNumber = 0;     // 0 in a new plan; a console hands it back as it came
    wire::WideString newPrinterName; // of the new queue
    std::string newQueueId;          // empty for none
    std::string oldIp;
    std::string oldPort;
    wire::WideString oldPrinterName;
    wire::WideString oldModelName;
    std::string schemaId;
    wire::WideString schemaName;
    std::int32_t action = 0; // one of schemaAction
    bool planFlag = false;   // a console hands it back as it came

    static constexpr auto fields = wireOrder(
        field("creator", &SchemaRecord::creator), field("planNumber", &SchemaRecord::planNumber),
        field("newPrinterName", &SchemaRecord::newPrinterName), field("newQueueId", &SchemaRecord::newQueueId),
        field("oldIp", &SchemaRecord::oldIp), field("oldPort", &SchemaRecord::oldPort),
        field("oldPrinterName", &SchemaRecord::oldPrinterName), field("oldModelName", &SchemaRecord::oldModelName),
        field("schemaId", &SchemaRecord::schemaId), field("schemaName", &SchemaRecord::schemaName),
        field("action", &SchemaRecord::action), field("planFlag", &SchemaRecord::planFlag));

    bool operator==(const SchemaRecord&) const = default;
};

} // namespace protocol
