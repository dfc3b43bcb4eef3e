#pragma once

#include "client/CQVXAdminClass2.h"
#include "client/RawReply.h"
#include "client/RecordCursor.h"
#include "client/alarms/AlarmCommands.h"
#include "client/configurations/ConfigurationCommands.h"
#include "client/drivers/DriverCommands.h"
#include "client/inventory/InventoryCommands.h"
#include "client/rules/RuleCommands.h"
#include "protocol/FieldValue.h"
#include "protocol/estate/Login.h"
#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"
#include "protocol/estate/StatusReply.h"
#include "wire/Text.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace client {

// The server, one operation for each of its commands.
//
// An operation that gives a bool is false when there is no connection, or when no reply came; a write command that went
// out is true, whatever the server makes of it. Every operation may throw: ConnectFailed, std::runtime_error with the
// text of a reader, wire::Cancelled, and the plain strings of the wire layer. Belongs to one thread.
class CQVXAdminClass : public CQVXAdminClass2,
                       public DriverCommands,
                       public ConfigurationCommands,
                       public RuleCommands,
                       public AlarmCommands,
                       public InventoryCommands {
public:
    CQVXAdminClass(); // on theProperties
    explicit CQVXAdminClass(std::shared_ptr<CQVXAdminClassProperties> settingsToUse);

    // Proves a name and a password, and gives the server's answer; every failure is noAnswer. User and domain stand
    // in the settings afterwards, as typed, once the key has come and the server is connected.
    protocol::LoginStatus login(wire::WideString user, wire::WideString password, wire::WideString domain);

    // True means failure. The key is bytes with a length and may hold zeros.
    [[nodiscard]] bool fetchPublicKey(std::string& key, const std::string& serverHost, std::uint16_t serverPort);

    // Reads the regions of a tree, all or (with a parent) below one, for nextRegion and regions.
    bool listRegions(protocol::RegionKind kind, std::int32_t parentId = 0);

    // Hands out the regions of the last list from the last to the first; false when there are none left.
    bool nextRegion(std::int32_t& id, std::int32_t& parentId, wire::WideString& name);

    // The regions of the last list that nextRegion has not handed out, in the order of the wire.
    [[nodiscard]] const std::vector<protocol::RegionRecord>& regions() const { return regions_.records(); }

    // How many regions the server announced for the last list, a signed 16-bit number, below 0 for none.
    [[nodiscard]] std::int16_t announcedRegions() const { return regions_.announced(); }

    bool createRegion(protocol::RegionKind kind, std::int32_t parentId, const wire::WideString& name);
    bool renameRegion(protocol::RegionKind kind, std::int32_t regionId, const wire::WideString& newName);
    bool moveRegion(protocol::RegionKind kind, std::int32_t regionId, std::int32_t newParentId);
    bool deleteRegion(protocol::RegionKind kind, std::int32_t regionId);

    // The lists of printer records, for nextPrinterRecord and printerRecords. The count is what the server announced, a
    // signed 16-bit number: below 0 no records come, and a list that the server breaks off holds only what came before.
    bool getPrintersInRegion(std::int32_t regionId, std::int16_t& count);
    bool getQueuesOfPrinter(const std::string& printerId, std::int16_t& count);
    bool getQueuesInRegion(std::int32_t regionId, std::int16_t& count);
    bool getFollowQueuesInRegion(std::int32_t regionId, std::int16_t& count);
    bool getLocalPrintersInRegion(std::int32_t regionId, std::int16_t& count);
    bool getQueueById(const std::string& queueId, std::int16_t& count);
    bool getPrinterById(const std::string& printerId, std::int16_t& count);

    // Mode is one of protocol::printerListMode 8, 9 and 10.
    bool getRecordById(const std::string& id, std::uint16_t mode, std::int16_t& count);

    // Hands the records of the last list over from the last to the first; false when there are none left. Throws
    // std::out_of_range "invalid vector<T> subscript" for a list that broke off, as all cursors of this class do.
    bool nextPrinterRecord(protocol::PrinterRecord& record);

    // The records of the last list that nextPrinterRecord has not handed out, in the order of the wire.
    [[nodiscard]] const std::vector<protocol::PrinterRecord>& printerRecords() const { return printers_.records(); }
    [[nodiscard]] std::vector<protocol::PrinterRecord> takePrinterRecords() { return printers_.takeAll(); }

    // A refusal is in the reply; see showRefusal.
    [[nodiscard]] protocol::CreateRecordReply createRecord(const std::string& physicalPrinterId,
                                                           const protocol::PrinterRecord& record);
    [[nodiscard]] protocol::StatusReply updateRecord(const protocol::PrinterRecord& record);

    bool movePrinter(const std::string& printerId, std::int32_t regionId);
    bool deletePrinter(const std::string& id);
    bool deleteQueue(const std::string& id);

    // 0 default, 1 normal, 2 swapped; none when no answer came.
    bool setStatusOctetOrder(const std::string& printerId, std::uint32_t order);
    [[nodiscard]] std::optional<std::uint32_t> getStatusOctetOrder(const std::string& printerId);

    // Shows what the server refused; true when there was something to show, which the caption alone decides.
    bool showRefusal(const protocol::StatusReply& status) const;

    // Any command of the catalogue with the fields given, which are sent as they are. Throws std::invalid_argument for
    // an opcode that is not in use and for the login, which is more than a command; ConnectFailed for every kind of
    // connection.
    [[nodiscard]] RawReply rawCall(std::uint16_t opcode, std::span<const protocol::FieldValue> fields);

private:
    bool listPrinterRecords(const protocol::ListPrinterRecordsRequest& request, std::string summary,
                            std::int16_t& count);
    bool deleteRecord(std::uint8_t type, const std::string& id);

    RecordCursor<protocol::RegionRecord> regions_;
    RecordCursor<protocol::PrinterRecord> printers_;
};

} // namespace client
