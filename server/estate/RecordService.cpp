#include "server/estate/RecordService.h"

#include "protocol/alarms/AlarmProgram.h"
#include "server/commands/Refusal.h"
#include "server/commands/ReplyBuffer.h"
#include "server/estate/ModelNames.h"
#include "server/estate/ProgramIds.h"
#include "server/estate/RecordTable.h"
#include "server/estate/RegionTable.h"
#include "wire/WireUuid.h"

namespace server {

using protocol::PrinterRecord;
using protocol::StatusReply;
using wire::WideString;

namespace {

namespace type = protocol::recordType;

using protocol::RecordDeletion;

// The word for such a record at the start of a sentence.
WideString wordFor(std::uint16_t recordType) {
    switch (recordType) {
    case type::queue:
        return u"queue";
    case type::followQueue:
        return u"follow-print queue";
    case type::localPrinter:
        return u"local printer";
    default:
        return u"printer";
    }
}

StatusReply notSaved(const WideString& text) {
    return refusal(u"Not saved", text);
}

StatusReply queueTaken(const WideString& name) {
    return notSaved(u"There is a queue named " + quoted(name) + u" in that region already.");
}

// The type that a new record is stored as; empty for one that cannot be created.
std::optional<std::uint16_t> storedType(std::uint16_t recordType) {
    switch (recordType) {
    case type::printer:
    case type::queue:
    case type::followQueue:
    case type::localPrinter:
        return recordType;
    case type::loadQueue:
        return type::queue;
    case type::loadPrinter:
        return type::printer;
    default:
        return std::nullopt;
    }
}

bool mayDelete(RecordDeletion requested, std::uint16_t recordType) {
    if (recordType == type::localPrinter) {
        return requested == RecordDeletion::printer || requested == RecordDeletion::queue;
    }
    return requested == (recordType == type::printer ? RecordDeletion::printer : RecordDeletion::queue);
}

} // namespace

std::optional<StatusReply> RecordService::refuse(const PrinterRecord& record) {
    const auto word = wordFor(record.recordType);
    // To a console a text ends at its first zero, so a name that begins with one is empty there.
    if (record.name.empty() || record.name.front() == u'\0') {
        return notSaved(u"A " + word + u" needs a name.");
    }
    if (frameDataSize(record) > largestReceivableFrame) {
        return notSaved(u"The texts of this " + word + u" are too long to be sent back in one piece.");
    }
    if (!connection_.table<RegionTable>().find(regionKindOf(record.recordType), record.regionId)) {
        return notSaved(u"The region of this " + word + u" does not exist.");
    }
    if (connection_.table<RecordTable>().nameTaken(record.regionId, record.recordType, record.name, record.id)) {
        return notSaved(u"There is a " + word + u" named " + quoted(record.name) +
                        u" in this region already. Please choose another name.");
    }
    return std::nullopt;
}

std::optional<StatusReply> RecordService::refuseReferences(const PrinterRecord& record, const PrinterRecord& before) {
    namespace kind = protocol::alarmProgramKind;
    auto& programs = connection_.table<ProgramIds>();
    const auto isNew = [&](std::string PrinterRecord::*id) {
        return !(record.*id).empty() && record.*id != before.*id;
    };
    const auto missing = [&](const WideString& object) {
        return notSaved(u"The " + object + u" of this " + wordFor(record.recordType) +
                        u" does not exist any more. Please choose another one.");
    };
    if (isNew(&PrinterRecord::modelId) && !connection_.table<ModelNames>().find(record.modelId)) {
        return missing(u"model");
    }
    if (isNew(&PrinterRecord::alarmProgramId) && !programs.has(record.alarmProgramId, kind::alarm)) {
        return missing(u"alarm program");
    }
    if (isNew(&PrinterRecord::counterProgramId) && !programs.has(record.counterProgramId, kind::counter)) {
        return missing(u"counter program");
    }
    return std::nullopt;
}

void RecordService::nameModel(PrinterRecord& record) {
    if (auto name = connection_.table<ModelNames>().find(record.modelId)) {
        record.modelName = std::move(*name);
    }
}

protocol::CreateRecordReply RecordService::create(const protocol::CreateRecordRequest& request) {
    StoredRecord stored{.record = request.record, .printerId = {}};
    auto& record = stored.record;
    const auto kind = storedType(record.recordType);
    if (!kind) {
        return {.status = notSaved(u"This server does not store records of this type."), .id = {}};
    }
    record.recordType = *kind;
    if (record.recordType == type::queue) {
        const auto printer = connection_.table<RecordTable>().find(request.physicalPrinterId);
        if (!printer || printer->record.recordType != type::printer) {
            return {.status = notSaved(u"The printer of this queue does not exist."), .id = {}};
        }
        stored.printerId = printer->record.id;
        record.regionId = printer->record.regionId;
    }
    record.id = wire::toText(wire::randomUuid());
    nameModel(record);
    if (const auto refused = refuse(record)) {
        return {.status = *refused, .id = {}};
    }
    if (const auto refused = refuseReferences(record, {})) {
        return {.status = *refused, .id = {}};
    }
    connection_.table<RecordTable>().insert(stored);
    return {.status = done(), .id = record.id};
}

StatusReply RecordService::update(const protocol::UpdateRecordRequest& request) {
    const auto before = connection_.table<RecordTable>().find(request.record.id);
    if (!before) {
        return notSaved(u"It was deleted in the meantime.");
    }
    auto record = request.record;
    record.recordType = before->record.recordType; // consoles send the type of the list from which they loaded it
    if (record.recordType == type::queue) {
        record.regionId = before->record.regionId; // a queue is in the region of its printer
    }
    nameModel(record);
    if (const auto refused = refuse(record)) {
        return *refused;
    }
    if (const auto refused = refuseReferences(record, before->record)) {
        return *refused;
    }
    const bool moves = record.recordType == type::printer && record.regionId != before->record.regionId;
    if (moves) {
        if (const auto queue = connection_.table<RecordTable>().queueNameTakenIn(record.regionId, record.id)) {
            return queueTaken(*queue);
        }
    }
    connection_.table<RecordTable>().update(record);
    if (moves) {
        connection_.table<RecordTable>().moveWithQueues(record.id, record.regionId);
    }
    return done();
}

StatusReply RecordService::move(const protocol::MovePrinterRequest& request) {
    auto& records = connection_.table<RecordTable>();
    auto found = records.find(request.printerId);
    if (!found) {
        return notSaved(u"The printer does not exist any more.");
    }
    auto& record = found->record;
    if (record.recordType == type::queue) {
        return notSaved(u"A queue is always in the region of its printer.");
    }
    if (record.regionId == request.regionId) {
        return done();
    }
    record.regionId = request.regionId;
    if (const auto refused = refuse(record)) {
        return *refused;
    }
    if (const auto queue = records.queueNameTakenIn(request.regionId, record.id)) {
        return queueTaken(*queue);
    }
    records.moveWithQueues(record.id, request.regionId);
    return done();
}

StatusReply RecordService::remove(const protocol::DeleteRecordRequest& request) {
    const auto found = connection_.table<RecordTable>().find(request.id);
    if (!found || !mayDelete(request.type, found->record.recordType)) {
        return notSaved(u"There is no such " +
                        WideString(request.type == RecordDeletion::printer ? u"printer." : u"queue."));
    }
    connection_.table<RecordTable>().removeWithQueues(request.id);
    return done();
}

StatusReply RecordService::setOctetOrder(const protocol::SetStatusOctetOrderRequest& request) {
    return connection_.table<RecordTable>().setOctetOrder(request.printerId, request.order)
               ? done()
               : notSaved(u"The printer does not exist any more.");
}

} // namespace server
