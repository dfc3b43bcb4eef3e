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
// An operation that returns a bool returns false when there is no connection or no reply; a write command that was sent
// returns true, whatever the server does with it. Every operation may throw: ConnectFailed, std::runtime_error with the
// text of a reader, wire::Cancelled, and the plain strings of the wire layer. Belongs to one thread.
class CQVXAdminClass : public CQVXAdminClass2,
                       public DriverCommands,
                       public ConfigurationCommands,
                       public RuleCommands,
                       public AlarmCommands,
                       public InventoryCommands {
public:
    CQVXAdminClass(); // uses theProperties
    explicit CQVXAdminClass(std::shared_ptr<CQVXAdminClassProperties> settingsToUse);

    // Verifies a name and a password, and returns the server's answer; every failure is noAnswer. Stores user and
    // domain in the settings, as typed, once the key has arrived and the server is connected.
    protocol::LoginStatus login(wire::WideString user, wire::WideString password, wire::WideString domain);

    // True means failure. The key is bytes with a length and may hold zeros.
    [[nodiscard]] bool fetchPublicKey(std::string& key, const std::string& serverHost, std::uint16_t serverPort);

    // Reads the regions of a tree, all or (with a parent) below one, for nextRegion and regions.
    bool listRegions(protocol::RegionKind kind, std::int32_t parentId = 0);

    // Returns the regions of the last list one by one, from the last to the first; false when none are left.
    bool nextRegion(std::int32_t& id, std::int32_t& parentId, wire::WideString& name);

    // The regions of the last list that nextRegion has not returned yet, in the order of the wire.
    [[nodiscard]] const std::vector<protocol::RegionRecord>& regions() const { return regions_.records(); }

    // How many regions the server announced for the last list, a signed 16-bit number, below 0 for none.
    [[nodiscard]] std::int16_t announcedRegions() const { return regions_.announced(); }

    bool createRegion(protocol::RegionKind kind, std::int32_t parentId, const wire::WideString& name);
    bool renameRegion(protocol::RegionKind kind, std::int32_t regionId, const wire::WideString& newName);
    bool moveRegion(protocol::RegionKind kind, std::int32_t regionId, std::int32_t newParentId);
    bool deleteRegion(protocol::RegionKind kind, std::int32_t regionId);

    // The lists of printer records, for nextPrinterRecord and printerRecords. The count is what the server announced, a
    // signed 16-bit number: below 0 no records follow, and a list that the server cuts short contains only what arrived
    // before.
    bool getPrintersInRegion(std::int32_t regionId, std::int16_t& count);
    bool getQueuesOfPrinter(const std::string& printerId, std::int16_t& count);
    bool getQueuesInRegion(std::int32_t regionId, std::int16_t& count);
    bool getFollowQueuesInRegion(std::int32_t regionId, std::int16_t& count);
    bool getLocalPrintersInRegion(std::int32_t regionId, std::int16_t& count);
    bool getQueueById(const std::string& queueId, std::int16_t& count);
    bool getPrinterById(const std::string& printerId, std::int16_t& count);

    // Mode is one of protocol::printerListMode 8, 9 and 10.
    bool getRecordById(const std::string& id, std::uint16_t mode, std::int16_t& count);

    // Returns the records of the last list one by one, from the last to the first; false when none are left. Throws
    // std::out_of_range "invalid vector<T> subscript" for a list that was cut short, as all cursors of this class do.
    bool nextPrinterRecord(protocol::PrinterRecord& record);

    // The records of the last list that nextPrinterRecord has not returned yet, in the order of the wire.
    [[nodiscard]] const std::vector<protocol::PrinterRecord>& printerRecords() const { return printers_.records(); }
    [[nodiscard]] std::vector<protocol::PrinterRecord> takePrinterRecords() { return printers_.takeAll(); }

    // A refusal is in the reply; see showRefusal.
    [[nodiscard]] protocol::CreateRecordReply createRecord(const std::string& physicalPrinterId,
                                                           const protocol::PrinterRecord& record);
    [[nodiscard]] protocol::StatusReply updateRecord(const protocol::PrinterRecord& record);

    bool movePrinter(const std::string& printerId, std::int32_t regionId);
    bool deletePrinter(const std::string& id);
    bool deleteQueue(const std::string& id);

    // 0 default, 1 normal, 2 swapped; empty without an answer.
    bool setStatusOctetOrder(const std::string& printerId, std::uint32_t order);
    [[nodiscard]] std::optional<std::uint32_t> getStatusOctetOrder(const std::string& printerId);

    // Shows a refusal by the server; true when there was one, which only the caption decides.
    [[nodiscard]] bool showRefusal(const protocol::StatusReply& status) const;

    // Sends any command of the catalogue with the given fields, unchanged. Throws std::invalid_argument for an unused
    // opcode and for the login, which is more than one command; ConnectFailed for every kind of connection.
    [[nodiscard]] RawReply rawCall(std::uint16_t opcode, std::span<const protocol::FieldValue> fields);

private:
    bool listPrinterRecords(const protocol::ListPrinterRecordsRequest& request, std::string summary,
                            std::int16_t& count);
    bool deleteRecord(protocol::RecordDeletion type, const std::string& id);

    RecordCursor<protocol::RegionRecord> regions_;
    RecordCursor<protocol::PrinterRecord> printers_;
};

} // namespace client
