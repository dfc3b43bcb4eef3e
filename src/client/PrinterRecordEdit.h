#pragma once

#include "client/CQVXAdminClass.h"
#include "protocol/estate/Printer.h"

#include <bitset>
#include <cstdint>
#include <memory>
#include <string>

namespace client {

// A printer, a queue, a follow-print queue or a local printer that is being created or changed.
class PrinterRecordEdit {
public:
    // A new record. Throws std::runtime_error "Trying to create a printer without region" unless a printer (0) has a
    // region and no physical printer, and "Trying to create a queue without physical printer" unless a queue (1) has
    // one. The types 5 and 4 are stored as 0 and 1.
    PrinterRecordEdit(std::int32_t regionId, std::string physicalPrinterId, std::uint16_t recordType,
                      std::shared_ptr<CQVXAdminClassProperties> settings = theProperties);

    // The record with that id, by a type of protocol::recordType; 9 and 10 make a new printer and a new queue of it
    // when it is saved. Throws std::runtime_error "No printer ID" for an empty id and "No such printer" when the server
    // has none, ConnectFailed when it does not answer, and what loading throws.
    PrinterRecordEdit(const std::string& id, std::uint16_t recordType,
                      std::shared_ptr<CQVXAdminClassProperties> settings = theProperties);

    // Creates the record, with one command; or updates it, with one command for each field that was set. False when the
    // server refused, which has been shown by then. Throws as CQVXAdminClass does.
    bool save();

    [[nodiscard]] const protocol::PrinterRecord& record() const { return record_; }
    [[nodiscard]] const std::string& physicalPrinterId() const { return physicalPrinterId_; }
    [[nodiscard]] bool exists() const { return exists_; }

    void setPhysicalPrinterId(std::string id) { physicalPrinterId_ = std::move(id); }

    // For a record that is still to be created. One on the server is moved instead.
    void setRegionId(std::int32_t regionId) { record_.regionId = regionId; }

    // Each sets the field and marks it as set, even if the value is the same as before.
    void setIp(std::string value) { set(&protocol::PrinterRecord::ip, std::move(value), Dirty::ip); }
    void setPort(std::uint32_t value) { set(&protocol::PrinterRecord::port, value, Dirty::port); }
    void setLprQueueName(wire::WideString value) {
        set(&protocol::PrinterRecord::lprQueueName, std::move(value), Dirty::lprQueueName);
    }
    void setComment(wire::WideString value) {
        set(&protocol::PrinterRecord::comment, std::move(value), Dirty::comment);
    }
    void setLocation(wire::WideString value) {
        set(&protocol::PrinterRecord::location, std::move(value), Dirty::location);
    }
    void setModelId(std::string value) { set(&protocol::PrinterRecord::modelId, std::move(value), Dirty::modelId); }
    void setSnmpCommunity(wire::WideString value) {
        set(&protocol::PrinterRecord::snmpCommunity, std::move(value), Dirty::snmpCommunity);
    }
    void setSnmpIndex(std::uint8_t value) { set(&protocol::PrinterRecord::snmpIndex, value, Dirty::snmpIndex); }
    void setName(wire::WideString value) { set(&protocol::PrinterRecord::name, std::move(value), Dirty::name); }
    void setTimeToLive(std::uint16_t value) { set(&protocol::PrinterRecord::timeToLive, value, Dirty::timeToLive); }
    void setQueueState(std::uint8_t value) { set(&protocol::PrinterRecord::queueState, value, Dirty::queueState); }
    void setLocalDriverHandling(bool value) {
        set(&protocol::PrinterRecord::localDriverHandling, value, Dirty::localDriverHandling);
    }
    void setLocalConfigHandling(bool value) {
        set(&protocol::PrinterRecord::localConfigHandling, value, Dirty::localConfigHandling);
    }
    void setSnmpActive(bool value) { set(&protocol::PrinterRecord::snmpActive, value, Dirty::snmpActive); }
    void setAlarmProgramId(std::string value) {
        set(&protocol::PrinterRecord::alarmProgramId, std::move(value), Dirty::alarmProgramId);
    }
    void setFpBoxIp(std::string value) { set(&protocol::PrinterRecord::fpBoxIp, std::move(value), Dirty::fpBoxIp); }
    void setMailMessage(wire::WideString value) {
        set(&protocol::PrinterRecord::mailMessage, std::move(value), Dirty::mailMessage);
    }
    void setInvisible(std::uint8_t value) { set(&protocol::PrinterRecord::invisible, value, Dirty::invisible); }
    void setCounterProgramId(std::string value) {
        set(&protocol::PrinterRecord::counterProgramId, std::move(value), Dirty::counterProgramId);
    }
    void setAccounting(std::uint8_t value) { set(&protocol::PrinterRecord::accounting, value, Dirty::accounting); }
    void setDoNotAutoCreateQueue(std::uint8_t value) {
        set(&protocol::PrinterRecord::doNotAutoCreateQueue, value, Dirty::doNotAutoCreateQueue);
    }

    // Set by both constructors; nothing reads it.
    std::uint32_t spare = 0x7FFF;

private:
    // In the order in which save checks them.
    enum class Dirty : std::uint8_t {
        ip,
        port,
        lprQueueName,
        comment,
        location,
        modelId,
        snmpCommunity,
        snmpIndex,
        name,
        timeToLive,
        queueState,
        localDriverHandling,
        localConfigHandling,
        snmpActive,
        alarmProgramId,
        fpBoxIp,
        mailMessage,
        invisible,
        counterProgramId,
        accounting,
        doNotAutoCreateQueue,
        count,
    };

    template <class Value>
    void set(Value protocol::PrinterRecord::*member, Value value, Dirty flag) {
        record_.*member = std::move(value);
        dirty_.set(static_cast<std::size_t>(flag));
    }

    bool create();
    bool update();

    CQVXAdminClass server_;
    protocol::PrinterRecord record_;
    std::string physicalPrinterId_; // of a queue
    bool exists_ = false;           // on the server
    std::bitset<static_cast<std::size_t>(Dirty::count)> dirty_;
};

} // namespace client
