#include "server/inventory/MigrationPlanService.h"

#include "server/commands/Refusal.h"
#include "server/commands/ReplyBuffer.h"
#include "server/inventory/MigrationPlanTable.h"
#include "wire/WireUuid.h"

namespace server {

using protocol::StatusReply;

namespace {

using PlanOperation = protocol::SchemaOperation;

StatusReply planNotSaved(const wire::WideString& text) {
    return refusal(u"Not saved", text);
}

StatusReply doneIfThere(bool isThere) {
    return isThere ? done() : planNotSaved(u"The migration plan was deleted in the meantime.");
}

} // namespace

StatusReply MigrationPlanService::change(const protocol::ChangeSchemaRequest& request) {
    auto& plans = connection_.table<MigrationPlanTable>();
    auto plan = request.schema;
    if (request.operation == PlanOperation::remove) {
        return doneIfThere(plans.remove(plan.schemaId));
    }
    if (request.operation == PlanOperation::create) {
        plan.schemaId = wire::toText(wire::randomUuid());
    }
    // A plan outlives its queue and then goes by the queue's name.
    if (!plans.isQueue(plan.newQueueId)) {
        plan.newQueueId = plans.queueNamed(plan.newPrinterName).value_or(std::string());
    }
    if (frameDataSize(plan) > largestReceivableFrame) {
        return planNotSaved(u"The texts of this migration plan are too long to be sent back in one piece.");
    }
    if (request.operation != PlanOperation::create) {
        return doneIfThere(plans.update(plan));
    }
    plans.insert(plan);
    return done();
}

} // namespace server
