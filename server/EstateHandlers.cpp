#include "server/EstateHandlers.h"

#include "protocol/GetStatusOctetOrderReply.h"
#include "protocol/GetStatusOctetOrderRequest.h"
#include "server/RecordRules.h"
#include "server/RegionListAnswer.h"
#include "server/RegionRules.h"

namespace server {

namespace {

Listing listRecords(Estate& estate, const protocol::ListPrinterRecordsRequest& request) {
    return {.count = estate.records().count(request), .rows = estate.records().list(request)};
}

// 0 for a printer that is not there.
std::optional<protocol::GetStatusOctetOrderReply> tellOctetOrder(Estate& estate,
                                                                 const protocol::GetStatusOctetOrderRequest& request) {
    return protocol::GetStatusOctetOrderReply{.order = estate.records().octetOrder(request.printerId).value_or(0)};
}

std::unique_ptr<Answer> listRegions(Fields fields, Estate& estate) {
    return std::make_unique<RegionListAnswer>(RequestReader(fields).read<protocol::ListRegionsRequest>(), estate);
}

constexpr Handler handlers[] = {
    {.opcode = protocol::ListRegionsRequest::opcode, .answer = &listRegions},
    changes<RegionRules, &RegionRules::create, protocol::CreateRegionRequest>,
    changes<RegionRules, &RegionRules::rename, protocol::RenameRegionRequest>,
    changes<RegionRules, &RegionRules::move, protocol::MoveRegionRequest>,
    changes<RegionRules, &RegionRules::remove, protocol::DeleteRegionRequest>,
    lists<protocol::ListPrinterRecordsRequest, protocol::PrinterRecord, listRecords>,
    changesWithReply<RecordRules, &RecordRules::create, protocol::CreateRecordRequest>,
    changesWithReply<RecordRules, &RecordRules::update, protocol::UpdateRecordRequest>,
    changes<RecordRules, &RecordRules::move, protocol::MovePrinterRequest>,
    changes<RecordRules, &RecordRules::remove, protocol::DeleteRecordRequest>,
    changes<RecordRules, &RecordRules::setOctetOrder, protocol::SetStatusOctetOrderRequest>,
    answers<protocol::GetStatusOctetOrderRequest, tellOctetOrder>,
};

} // namespace

std::span<const Handler> estateHandlers() {
    return handlers;
}

} // namespace server
