#pragma once

#include "protocol/WireOrder.h"
#include "protocol/inventory/SchemaRecord.h"

namespace protocol {

// Adds, changes or deletes a migration plan.
struct ChangeSchemaRequest {
    static constexpr std::uint16_t opcode = 38;
    static constexpr std::array<std::uint8_t, 3> actions = {1, 2, 4};

    std::uint8_t operation = 0; // 1 creates, 2 saves an edit, 4 deletes by the schemaId alone
    SchemaRecord schema;

    static constexpr auto fields =
        wireOrder(field("operation", &ChangeSchemaRequest::operation), field("schema", &ChangeSchemaRequest::schema));

    bool operator==(const ChangeSchemaRequest&) const = default;
};

} // namespace protocol
