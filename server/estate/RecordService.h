#pragma once

#include "protocol/estate/Printer.h"
#include "server/store/StoreConnection.h"

namespace server {

// What may be done to printers, queues, follow-print queues and local printers, and doing it. Each change runs inside
// of the caller's transaction; a refused one has changed nothing. Throws StoreError.
class RecordService {
public:
    explicit RecordService(StoreConnection& connection) : connection_(connection) {}

    // The new record gets an id of its own; the one in the request is not looked at.
    protocol::CreateRecordReply create(const protocol::CreateRecordRequest& request);
    protocol::StatusReply update(const protocol::UpdateRecordRequest& request);
    // A printer takes its queues along.
    protocol::StatusReply move(const protocol::MovePrinterRequest& request);
    protocol::StatusReply remove(const protocol::DeleteRecordRequest& request);
    protocol::StatusReply setOctetOrder(const protocol::SetStatusOctetOrderRequest& request);

private:
    // A model of the driver catalogue goes by its name there; the name of any other model stays as it came.
    void nameModel(protocol::PrinterRecord& record);
    [[nodiscard]] std::optional<protocol::StatusReply> refuse(const protocol::PrinterRecord& record);

    StoreConnection& connection_;
};

} // namespace server
