#pragma once

#include "protocol/CatalogueRow.h"
#include "protocol/estate/Login.h"
#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"
#include "protocol/estate/StatusReply.h"

namespace protocol {

// The commands for regions, printers and queues, and the login. The list of regions comes as one message with all
// records as long as they fit, and only beyond that in the form of the other lists. CreateRecord and UpdateRecord have
// a single reply that must not be missing.
inline constexpr Command estateRows[] = {
    row(0, "ListRegions", "lists the regions of a tree, all or below one parent")
        .asks<ListRegionsRequest>()
        .list<RegionRecord>(ReaderForm::strict)
        .over(Connection::open),
    row(1, "CreateRegion", "creates a region").asks<CreateRegionRequest>(),
    row(2, "RenameRegion", "renames a region").asks<RenameRegionRequest>(),
    row(3, "MoveRegion", "moves a region below another parent").asks<MoveRegionRequest>(),
    row(6, "ListPrinterRecords", "lists printers, queues, follow-print queues or local printers, by mode")
        .asks<ListPrinterRecordsRequest>()
        .list<PrinterRecord>(ReaderForm::plain),
    row(9, "CreateRecord", "creates a printer, a queue or a local printer")
        .asks<CreateRecordRequest>()
        .single<CreateRecordReply>(ReaderForm::middle)
        .over(Connection::open),
    row(10, "UpdateRecord", "updates a printer, a queue or a local printer")
        .ofVersion(2)
        .asks<UpdateRecordRequest>()
        .single<StatusReply>(ReaderForm::middle)
        .over(Connection::open),
    row(21, "MovePrinter", "moves a printer into another region").asks<MovePrinterRequest>(),
    row(22, "Login", "logs a user in").asks<LoginRequest>().single<LoginReply>(ReaderForm::plain),
    row(36, "DeleteRecord", "deletes a printer or a queue").asks<DeleteRecordRequest>(),
    row(45, "DeleteRegion", "deletes a region").asks<DeleteRegionRequest>().leftOpen(),
    row(74, "SetStatusOctetOrder", "sets the status octet order of a printer").asks<SetStatusOctetOrderRequest>(),
    row(76, "GetStatusOctetOrder", "gets the status octet order of a printer")
        .asks<GetStatusOctetOrderRequest>()
        .single<GetStatusOctetOrderReply>(ReaderForm::plain)
        .leftOpen(),
    row(78, "GetPublicKey", "gets the public key for the login")
        .asks<GetPublicKeyRequest>()
        .singleAndBlock<GetPublicKeyReply>(ReaderForm::plain)
        .over(Connection::own),
};

} // namespace protocol
