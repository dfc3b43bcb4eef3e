#include "client/CQVXAdminClass.h"

#include "client/CursorCalls.h"
#include "client/RegionSummary.h"
#include "protocol/estate/Printer.h"

namespace client {

namespace mode = protocol::printerListMode;
using protocol::ListPrinterRecordsRequest;

bool CQVXAdminClass::listPrinterRecords(const ListPrinterRecordsRequest& request, std::string summary,
                                        std::int16_t& count) {
    count = 0;
    const bool listed = fillCursor(*this, printers_, request, std::move(summary));
    count = printers_.announced();
    return listed;
}

bool CQVXAdminClass::getPrintersInRegion(std::int32_t regionId, std::int16_t& count) {
    return listPrinterRecords({.printerId = {}, .regionId = regionId, .mode = mode::printersInRegion},
                              regionSummary(regionId), count);
}

bool CQVXAdminClass::getQueuesOfPrinter(const std::string& printerId, std::int16_t& count) {
    return listPrinterRecords({.printerId = printerId, .mode = mode::queues}, printerId, count);
}

bool CQVXAdminClass::getQueuesInRegion(std::int32_t regionId, std::int16_t& count) {
    return listPrinterRecords({.printerId = {}, .regionId = regionId, .mode = mode::queues}, regionSummary(regionId),
                              count);
}

bool CQVXAdminClass::getFollowQueuesInRegion(std::int32_t regionId, std::int16_t& count) {
    return listPrinterRecords({.printerId = {}, .regionId = regionId, .mode = mode::followQueuesInRegion},
                              regionSummary(regionId), count);
}

bool CQVXAdminClass::getLocalPrintersInRegion(std::int32_t regionId, std::int16_t& count) {
    return listPrinterRecords({.printerId = {}, .regionId = regionId, .mode = mode::localPrintersInRegion},
                              regionSummary(regionId), count);
}

bool CQVXAdminClass::getQueueById(const std::string& queueId, std::int16_t& count) {
    return listPrinterRecords({.printerId = queueId, .mode = mode::queueById}, queueId, count);
}

bool CQVXAdminClass::getPrinterById(const std::string& printerId, std::int16_t& count) {
    return listPrinterRecords({.printerId = printerId, .mode = mode::printerById}, printerId, count);
}

bool CQVXAdminClass::getRecordById(const std::string& id, std::uint16_t listMode, std::int16_t& count) {
    return listPrinterRecords({.printerId = id, .mode = listMode}, id, count);
}

bool CQVXAdminClass::nextPrinterRecord(protocol::PrinterRecord& record) {
    return printers_.next(record);
}

protocol::CreateRecordReply CQVXAdminClass::createRecord(const std::string& physicalPrinterId,
                                                         const protocol::PrinterRecord& record) {
    auto reply = askServer<protocol::CreateRecordReply>(
        *this, protocol::CreateRecordRequest{.physicalPrinterId = physicalPrinterId, .record = record},
        wire::toUtf8(record.name));
    return std::move(reply).value();
}

protocol::StatusReply CQVXAdminClass::updateRecord(const protocol::PrinterRecord& record) {
    auto reply = askServer<protocol::StatusReply>(*this, protocol::UpdateRecordRequest{.record = record},
                                                  wire::toUtf8(record.name));
    return std::move(reply).value();
}

bool CQVXAdminClass::movePrinter(const std::string& printerId, std::int32_t regionId) {
    return sendCommand(*this, protocol::MovePrinterRequest{.printerId = printerId, .regionId = regionId}, printerId);
}

bool CQVXAdminClass::deletePrinter(const std::string& id) {
    return deleteRecord(protocol::RecordDeletion::printer, id);
}

bool CQVXAdminClass::deleteQueue(const std::string& id) {
    return deleteRecord(protocol::RecordDeletion::queue, id);
}

bool CQVXAdminClass::deleteRecord(protocol::RecordDeletion type, const std::string& id) {
    return sendCommand(*this, protocol::DeleteRecordRequest{.type = type, .id = id}, id);
}

bool CQVXAdminClass::setStatusOctetOrder(const std::string& printerId, std::uint32_t order) {
    return sendCommand(*this, protocol::SetStatusOctetOrderRequest{.order = order, .printerId = printerId}, printerId);
}

std::optional<std::uint32_t> CQVXAdminClass::getStatusOctetOrder(const std::string& printerId) {
    const auto reply = askServer<protocol::GetStatusOctetOrderReply>(
        *this, protocol::GetStatusOctetOrderRequest{.printerId = printerId}, printerId);
    return reply ? std::optional(reply->order) : std::nullopt;
}

} // namespace client
