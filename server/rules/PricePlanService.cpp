#include "server/rules/PricePlanService.h"

#include "server/rules/NamedTable.h"
#include "server/rules/PriceEntryTable.h"
#include "server/rules/WriteChecks.h"

namespace server {

namespace {

const wire::WideString planWord = u"price plan";
const wire::WideString entryWord = u"price of the plan";

Refused refuseEntry(const protocol::PriceEntryRecord& entry) {
    if (auto refused = refuseId(entryWord, entry.id)) {
        return refused;
    }
    if (!isKnown(entry.kind)) {
        return ruleRefused(u"There is no such kind of price.");
    }
    return refuseFrameSize(entryWord, frameDataSize(entry));
}

} // namespace

protocol::StatusReply PricePlanService::write(const protocol::WritePricePlanRequest& request) {
    auto& plans = connection_.table<PricePlanTable>();
    if (const auto refused = refuseWrite(plans, planWord, request.action, request.plan)) {
        return *refused;
    }
    if (const auto refused = refuseName(planWord, request.plan.name)) {
        return *refused;
    }
    if (request.plan.payMethod > protocol::payMethod::last) {
        return ruleRefused(u"There is no such pay method.");
    }
    for (const auto& entry : request.entries) {
        if (const auto refused = refuseEntry(entry)) {
            return *refused;
        }
    }
    store(plans, request.action, request.plan);
    connection_.table<PriceEntryTable>().replace(request.plan.id, request.entries);
    return done();
}

protocol::StatusReply PricePlanService::remove(const protocol::DeletePricePlanRequest& request) {
    return removeFrom(connection_.table<PricePlanTable>(), planWord, request.id);
}

} // namespace server
