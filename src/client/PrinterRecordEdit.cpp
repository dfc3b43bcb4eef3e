#include "client/PrinterRecordEdit.h"

#include "client/ConnectFailed.h"
#include "protocol/estate/Printer.h"

#include <stdexcept>

namespace client {
namespace {

namespace type = protocol::recordType;
namespace mode = protocol::printerListMode;

std::uint16_t storedType(std::uint16_t recordType) {
    switch (recordType) {
    case type::loadPrinter:
        return type::printer;
    case type::loadQueue:
        return type::queue;
    default:
        return recordType;
    }
}

std::uint16_t loadMode(std::uint16_t recordType) {
    switch (recordType) {
    case type::queue:
    case type::followQueue:
    case type::loadQueue:
        return mode::queueById;
    case type::printer:
    case type::loadPrinter:
    case type::loadPrinterAsSeven:
        return mode::printerById;
    case type::copyOfPrinter:
        return mode::printerToCopyById;
    case type::copyOfQueue:
        return mode::queueToCopyById;
    default:
        return mode::otherRowById;
    }
}

} // namespace

PrinterRecordEdit::PrinterRecordEdit(std::int32_t regionId, std::string physicalPrinterId, std::uint16_t recordType,
                                     std::shared_ptr<CQVXAdminClassProperties> settings)
    : server_(std::move(settings)), physicalPrinterId_(std::move(physicalPrinterId)) {
    if (recordType == type::printer && (regionId == 0 || !physicalPrinterId_.empty())) {
        throw std::runtime_error("Trying to create a printer without region");
    }
    if (recordType == type::queue && physicalPrinterId_.empty()) {
        throw std::runtime_error("Trying to create a queue without physical printer");
    }
    record_.regionId = regionId;
    record_.recordType = storedType(recordType);
}

PrinterRecordEdit::PrinterRecordEdit(const std::string& id, std::uint16_t recordType,
                                     std::shared_ptr<CQVXAdminClassProperties> settings)
    : server_(std::move(settings)), exists_(true) {
    if (id.empty()) {
        throw std::runtime_error("No printer ID");
    }
    std::int16_t count = 0;
    if (!server_.getRecordById(id, loadMode(recordType), count)) {
        throw ConnectFailed();
    }
    if (!server_.nextPrinterRecord(record_)) {
        throw std::runtime_error("No such printer");
    }
    record_.recordType = storedType(recordType);
}

bool PrinterRecordEdit::save() {
    if (record_.recordType == type::copyOfPrinter) {
        exists_ = false;
        record_.recordType = type::printer;
    } else if (record_.recordType == type::copyOfQueue) {
        exists_ = false;
        record_.recordType = type::queue;
        record_.id = physicalPrinterId_; // odd, but must stay: the printer's id is sent as the new queue's
    }
    return exists_ ? update() : create();
}

bool PrinterRecordEdit::create() {
    auto reply = server_.createRecord(physicalPrinterId_, record_);
    const bool refused = server_.showRefusal(reply.status);
    record_.id = std::move(reply.id);
    if (refused) {
        return false;
    }
    exists_ = true;
    dirty_.reset(); // everything that was set has been sent
    return true;
}

// Sends the whole record once for each field that was set, always the same: servers expect an update for each field, so
// the repetition must stay.
bool PrinterRecordEdit::update() {
    bool refused = false;
    for (std::size_t flag = 0; flag < dirty_.size(); ++flag) {
        if (dirty_.test(flag)) {
            refused |= server_.showRefusal(server_.updateRecord(record_));
        }
    }
    return !refused;
}

} // namespace client
