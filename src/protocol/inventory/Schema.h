#pragma once

#include "protocol/WireOrder.h"

#include <cstdint>

// What a migration plan does with the old printer.
namespace protocol::schemaAction {

constexpr std::int32_t ignore = 1;
constexpr std::int32_t reinstall = 2; // on the new queue
constexpr std::int32_t remove = 3;

} // namespace protocol::schemaAction

// Which migration plans a list asks for.
namespace protocol::schemaListKind {

constexpr std::uint32_t all = 0; // with an id, those of that report
constexpr std::uint32_t one = 1;

} // namespace protocol::schemaListKind

namespace protocol {

// The operation on a migration plan.
enum class SchemaOperation : std::uint8_t {
    create = 1,
    save = 2,
    remove = 4, // uses only the schemaId
};

// A migration plan: what to do with one printer of the old estate. Empty fields of the old printer are ignored.
struct SchemaRecord {
    wire::WideString creator;
    std::int32_t planNumber = 0;     // 0 in a new plan; a console sends it back unchanged
    wire::WideString newPrinterName; // of the new queue
    std::string newQueueId;          // empty for none
    std::string oldIp;
    std::string oldPort;
    wire::WideString oldPrinterName;
    wire::WideString oldModelName;
    std::string schemaId;
    wire::WideString schemaName;
    std::int32_t action = 0; // one of schemaAction
    bool planFlag = false;   // a console sends it back unchanged

    static constexpr auto fields = wireOrder(
        field("creator", &SchemaRecord::creator), field("planNumber", &SchemaRecord::planNumber),
        field("newPrinterName", &SchemaRecord::newPrinterName), field("newQueueId", &SchemaRecord::newQueueId),
        field("oldIp", &SchemaRecord::oldIp), field("oldPort", &SchemaRecord::oldPort),
        field("oldPrinterName", &SchemaRecord::oldPrinterName), field("oldModelName", &SchemaRecord::oldModelName),
        field("schemaId", &SchemaRecord::schemaId), field("schemaName", &SchemaRecord::schemaName),
        field("action", &SchemaRecord::action), field("planFlag", &SchemaRecord::planFlag));

    bool operator==(const SchemaRecord&) const = default;
};

// Lists migration plans: all, those of a report, or one.
struct ListSchemasRequest {
    static constexpr std::uint16_t opcode = 37;

    std::string id;             // of a report, or of the one plan; empty for all
    std::uint32_t listKind = 0; // one of schemaListKind

    static constexpr auto fields =
        wireOrder(field("id", &ListSchemasRequest::id), field("listKind", &ListSchemasRequest::listKind));

    bool operator==(const ListSchemasRequest&) const = default;
};

// Adds, changes or deletes a migration plan.
struct ChangeSchemaRequest {
    static constexpr std::uint16_t opcode = 38;
    static constexpr std::array actions = {SchemaOperation::create, SchemaOperation::save, SchemaOperation::remove};

    SchemaOperation operation = SchemaOperation::create;
    SchemaRecord schema;

    static constexpr auto fields =
        wireOrder(field("operation", &ChangeSchemaRequest::operation), field("schema", &ChangeSchemaRequest::schema));

    bool operator==(const ChangeSchemaRequest&) const = default;
};

} // namespace protocol
