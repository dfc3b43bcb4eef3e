#pragma once

#include "protocol/estate/Printer.h"
#include "server/store/StoreConnection.h"

namespace server {

// Checks and carries out changes of printers, queues, follow-print queues and local printers. Each change runs inside
// the caller's transaction; a refused one has changed nothing. Throws StoreError.
class RecordService {
public:
    explicit RecordService(StoreConnection& connection) : connection_(connection) {}

    // The new record gets a new id; the one in the request is ignored.
    protocol::CreateRecordReply create(const protocol::CreateRecordRequest& request);
    protocol::StatusReply update(const protocol::UpdateRecordRequest& request);
    // A printer's queues move with it.
    protocol::StatusReply move(const protocol::MovePrinterRequest& request);
    protocol::StatusReply remove(const protocol::DeleteRecordRequest& request);
    protocol::StatusReply setOctetOrder(const protocol::SetStatusOctetOrderRequest& request);

private:
    // A model of the driver catalogue gets its name from there; the name of any other model is left as received.
    void nameModel(protocol::PrinterRecord& record);
    [[nodiscard]] std::optional<protocol::StatusReply> refuse(const protocol::PrinterRecord& record);
    // Checks that the model and the programs exist. What the record referred to before is left as it is.
    [[nodiscard]] std::optional<protocol::StatusReply> refuseReferences(const protocol::PrinterRecord& record,
                                                                        const protocol::PrinterRecord& before);

    StoreConnection& connection_;
};

} // namespace server
