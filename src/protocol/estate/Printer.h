#pragma once

#include "protocol/WireOrder.h"
#include "protocol/estate/StatusReply.h"

#include <cstdint>
#include <string_view>

namespace protocol {

// What kind of row a printer record is. The values from loadQueue on (except localPrinter) only tell an editing object
// how to load a record.
namespace recordType {
constexpr std::uint16_t printer = 0;
constexpr std::uint16_t queue = 1;
constexpr std::uint16_t followQueue = 3; // belongs to a region, has no physical printer
constexpr std::uint16_t loadQueue = 4;   // stored as queue
constexpr std::uint16_t loadPrinter = 5; // stored as printer
constexpr std::uint16_t localPrinter = 6;
constexpr std::uint16_t loadPrinterAsSeven = 7; // loads a printer, kept as 7
constexpr std::uint16_t otherRow = 8;
constexpr std::uint16_t copyOfPrinter = 9; // saved as a new printer
constexpr std::uint16_t copyOfQueue = 10;  // saved as a new queue
} // namespace recordType

// Who counts a printer's pages.
namespace accounting {
constexpr std::uint8_t internal = 0;
constexpr std::uint8_t external = 3; // what is written; 1 and 2 mean the same when they are read

constexpr bool isExternal(std::uint8_t value) {
    return value >= 1 && value <= external;
}

constexpr std::u16string_view nameOf(std::uint8_t value) {
    return isExternal(value) ? u"External" : u"Internal";
}

constexpr std::uint8_t valueOf(std::u16string_view name) {
    return name == u"External" ? external : internal;
}
} // namespace accounting

// A printer, a queue, a follow-print queue or a local printer. All fields are always sent; those that begin with "aux"
// belong to the server, and a console sends them back unchanged.
struct PrinterRecord {
    std::string ip; // empty for a queue
    std::string fpBoxIp;
    std::string id; // uuid text
    wire::WideString name;
    wire::WideString location;
    wire::WideString comment;
    wire::WideString modelName;
    std::string modelId;
    std::string auxId;
    wire::WideString lprQueueName;
    std::uint32_t port = 515;
    std::int32_t regionId = 0;
    std::uint16_t jobs = 0;
    std::uint8_t snmpStatus = '0'; // the three states are ASCII digits
    std::uint8_t printingStatus = '0';
    std::uint8_t queueState = '0'; // '0' ok, '1' paused, '2' stopped, '3' deleted
    std::uint16_t recordType = recordType::printer;
    std::uint8_t auxByte = 0;
    wire::WideString auxText;
    std::uint16_t timeToLive = 0; // in the server's unit
    bool snmpActive = false;
    bool localDriverHandling = false;
    bool localConfigHandling = false;
    std::uint8_t snmpIndex = 0;
    wire::WideString snmpCommunity;
    std::string alarmProgramId; // empty for none
    wire::WideString mailMessage;
    std::uint8_t invisible = 0;
    std::string counterProgramId; // empty for none
    std::uint8_t accounting = 0;  // 0 internal, 1 to 3 external, of which 3 is written
    std::uint8_t doNotAutoCreateQueue = 0;
    std::string auxKey;

    static constexpr auto fields = wireOrder(
        field("ip", &PrinterRecord::ip), field("fpBoxIp", &PrinterRecord::fpBoxIp), field("id", &PrinterRecord::id),
        field("name", &PrinterRecord::name), field("location", &PrinterRecord::location),
        field("comment", &PrinterRecord::comment), field("modelName", &PrinterRecord::modelName),
        field("modelId", &PrinterRecord::modelId), field("auxId", &PrinterRecord::auxId),
        field("lprQueueName", &PrinterRecord::lprQueueName), field("port", &PrinterRecord::port),
        field("regionId", &PrinterRecord::regionId), field("jobs", &PrinterRecord::jobs),
        field("snmpStatus", &PrinterRecord::snmpStatus), field("printingStatus", &PrinterRecord::printingStatus),
        field("queueState", &PrinterRecord::queueState), field("recordType", &PrinterRecord::recordType),
        field("auxByte", &PrinterRecord::auxByte), field("auxText", &PrinterRecord::auxText),
        field("timeToLive", &PrinterRecord::timeToLive), field("snmpActive", &PrinterRecord::snmpActive),
        field("localDriverHandling", &PrinterRecord::localDriverHandling),
        field("localConfigHandling", &PrinterRecord::localConfigHandling),
        field("snmpIndex", &PrinterRecord::snmpIndex), field("snmpCommunity", &PrinterRecord::snmpCommunity),
        field("alarmProgramId", &PrinterRecord::alarmProgramId), field("mailMessage", &PrinterRecord::mailMessage),
        field("invisible", &PrinterRecord::invisible), field("counterProgramId", &PrinterRecord::counterProgramId),
        field("accounting", &PrinterRecord::accounting),
        field("doNotAutoCreateQueue", &PrinterRecord::doNotAutoCreateQueue), field("auxKey", &PrinterRecord::auxKey));

    bool operator==(const PrinterRecord&) const = default;
};

// What a list of printer records selects, and by which key of the request.
namespace printerListMode {
constexpr std::uint16_t printersInRegion = 0;      // region id
constexpr std::uint16_t queues = 1;                // printer id, or the region id while that is empty
constexpr std::uint16_t followQueuesInRegion = 3;  // region id
constexpr std::uint16_t queueById = 4;             // the printer id holds the queue's id
constexpr std::uint16_t printerById = 5;           // the printer id
constexpr std::uint16_t localPrintersInRegion = 6; // region id
constexpr std::uint16_t otherRowById = 8;          // the printer id holds the id
constexpr std::uint16_t printerToCopyById = 9;     // the printer id
constexpr std::uint16_t queueToCopyById = 10;      // the printer id holds the queue's id
} // namespace printerListMode

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

// Creates a printer, a queue, a follow-print queue or a local printer.
struct CreateRecordRequest {
    static constexpr std::uint16_t opcode = 9;

    std::string physicalPrinterId; // of a queue, otherwise empty
    PrinterRecord record;

    static constexpr auto fields = wireOrder(field("physicalPrinterId", &CreateRecordRequest::physicalPrinterId),
                                             field("record", &CreateRecordRequest::record));

    bool operator==(const CreateRecordRequest&) const = default;
};

// The outcome for a new record, and the id that it was given.
struct CreateRecordReply {
    StatusReply status;
    std::string id;

    static constexpr auto fields =
        wireOrder(field("status", &CreateRecordReply::status), field("id", &CreateRecordReply::id));

    bool operator==(const CreateRecordReply&) const = default;
};

// Replaces a printer record as a whole.
struct UpdateRecordRequest {
    static constexpr std::uint16_t opcode = 10;
    static constexpr std::uint16_t version = 2; // all other commands have 1

    PrinterRecord record;

    static constexpr auto fields = wireOrder(field("record", &UpdateRecordRequest::record));

    bool operator==(const UpdateRecordRequest&) const = default;
};

// What is to be deleted.
enum class RecordDeletion : std::uint8_t { printer = 1, queue = 2 };

// Deletes a printer or a queue.
struct DeleteRecordRequest {
    static constexpr std::uint16_t opcode = 36;

    RecordDeletion type = RecordDeletion::printer;
    std::string id;

    static constexpr auto fields =
        wireOrder(field("type", &DeleteRecordRequest::type), field("id", &DeleteRecordRequest::id));

    bool operator==(const DeleteRecordRequest&) const = default;
};

// Moves a printer to another region.
struct MovePrinterRequest {
    static constexpr std::uint16_t opcode = 21;

    std::string printerId;
    std::int32_t regionId = 0;

    static constexpr auto fields =
        wireOrder(field("printerId", &MovePrinterRequest::printerId), field("regionId", &MovePrinterRequest::regionId));

    bool operator==(const MovePrinterRequest&) const = default;
};

// Sets the order in which a printer reports its status octets.
struct SetStatusOctetOrderRequest {
    static constexpr std::uint16_t opcode = 74;

    std::uint32_t order = 0; // 0 default, 1 normal, 2 swapped
    std::string printerId;

    static constexpr auto fields = wireOrder(field("order", &SetStatusOctetOrderRequest::order),
                                             field("printerId", &SetStatusOctetOrderRequest::printerId));

    bool operator==(const SetStatusOctetOrderRequest&) const = default;
};

// Asks in which order a printer reports its status octets.
struct GetStatusOctetOrderRequest {
    static constexpr std::uint16_t opcode = 76;

    std::string printerId;

    static constexpr auto fields = wireOrder(field("printerId", &GetStatusOctetOrderRequest::printerId));

    bool operator==(const GetStatusOctetOrderRequest&) const = default;
};

// In which order a printer reports its status octets.
struct GetStatusOctetOrderReply {
    std::uint32_t order = 0; // 0 default, 1 normal, 2 swapped, anything else default

    static constexpr auto fields = wireOrder(field("order", &GetStatusOctetOrderReply::order));

    bool operator==(const GetStatusOctetOrderReply&) const = default;
};

} // namespace protocol
