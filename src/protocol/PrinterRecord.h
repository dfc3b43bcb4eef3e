#pragma once

#include "protocol/RecordType.h"
#include "protocol/WireOrder.h"

namespace protocol {

// A printer, a queue, a follow-print queue or a local printer. All fields are always sent; those that begin with "aux"
// belong to the server, a console hands them back as they came.
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

} // namespace protocol
