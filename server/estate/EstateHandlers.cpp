#include "server/estate/EstateHandlers.h"

#include "protocol/estate/Printer.h"
#include "server/estate/RecordService.h"
#include "server/estate/RecordTable.h"
#include "server/estate/RegionListStream.h"
#include "server/estate/RegionService.h"

namespace server {

namespace {

Listing listRecords(StoreConnection& connection, const protocol::ListPrinterRecordsRequest& request) {
    return {.count = connection.table<RecordTable>().count(request),
            .rows = connection.table<RecordTable>().list(request)};
}

// 0 for a printer that does not exist.
std::optional<protocol::GetStatusOctetOrderReply> tellOctetOrder(StoreConnection& connection,
                                                                 const protocol::GetStatusOctetOrderRequest& request) {
    return protocol::GetStatusOctetOrderReply{
        .order = connection.table<RecordTable>().octetOrder(request.printerId).value_or(0)};
}

std::unique_ptr<ReplyStream> listRegions(Fields fields, StoreConnection& connection) {
    return std::make_unique<RegionListStream>(RequestReader(fields).read<protocol::ListRegionsRequest>(), connection);
}

constexpr Handler handlers[] = {
    {.opcode = protocol::ListRegionsRequest::opcode, .answer = &listRegions},
    changes<RegionService, &RegionService::create, protocol::CreateRegionRequest>,
    changes<RegionService, &RegionService::rename, protocol::RenameRegionRequest>,
    changes<RegionService, &RegionService::move, protocol::MoveRegionRequest>,
    changes<RegionService, &RegionService::remove, protocol::DeleteRegionRequest>,
    lists<protocol::ListPrinterRecordsRequest, protocol::PrinterRecord, listRecords>,
    changesWithReply<RecordService, &RecordService::create, protocol::CreateRecordRequest>,
    changesWithReply<RecordService, &RecordService::update, protocol::UpdateRecordRequest>,
    changes<RecordService, &RecordService::move, protocol::MovePrinterRequest>,
    changes<RecordService, &RecordService::remove, protocol::DeleteRecordRequest>,
    changes<RecordService, &RecordService::setOctetOrder, protocol::SetStatusOctetOrderRequest>,
    answers<protocol::GetStatusOctetOrderRequest, tellOctetOrder>,
};

} // namespace

std::span<const Handler> estateHandlers() {
    return handlers;
}

} // namespace server
