#pragma once

#include "protocol/CatalogueRow.h"
#include "protocol/estate/Login.h"
#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"
#include "protocol/estate/StatusReply.h"

namespace protocol {

// The commands for regions, printers and queues, and the login. The list of regions is sent as one message if all
// records fit, otherwise in the form of the other lists. CreateRecord and UpdateRecord have a single reply that must
// not be missing.
inline constexpr Command estateRows[] = {
    row<ListRegionsRequest>("lists the regions of a tree, all or below one parent")
        .list<RegionRecord>(ReaderForm::strict)
        .over(Connection::open),
    row<CreateRegionRequest>("creates a region"),
    row<RenameRegionRequest>("renames a region"),
    row<MoveRegionRequest>("moves a region below another parent"),
    row<ListPrinterRecordsRequest>("lists printers, queues, follow-print queues or local printers, by mode")
        .list<PrinterRecord>(ReaderForm::plain),
    row<CreateRecordRequest>("creates a printer, a queue or a local printer")
        .single<CreateRecordReply>(ReaderForm::middle)
        .over(Connection::open),
    row<UpdateRecordRequest>("updates a printer, a queue or a local printer")
        .single<StatusReply>(ReaderForm::middle)
        .over(Connection::open),
    row<MovePrinterRequest>("moves a printer into another region"),
    row<LoginRequest>("logs a user in").single<LoginReply>(ReaderForm::plain),
    row<DeleteRecordRequest>("deletes a printer or a queue"),
    row<DeleteRegionRequest>("deletes a region").leftOpen(),
    row<SetStatusOctetOrderRequest>("sets the status octet order of a printer"),
    row<GetStatusOctetOrderRequest>("gets the status octet order of a printer")
        .single<GetStatusOctetOrderReply>(ReaderForm::plain)
        .leftOpen(),
    row<GetPublicKeyRequest>("gets the public key for the login")
        .singleAndBlock<GetPublicKeyReply>(ReaderForm::plain)
        .over(Connection::own),
};

} // namespace protocol
