#include "server/rules/PageLimitService.h"

#include "server/rules/NamedTable.h"
#include "server/rules/WriteChecks.h"

namespace server {

namespace {

const wire::WideString limitWord = u"page limit";

} // namespace

protocol::StatusReply PageLimitService::write(const protocol::WritePageLimitRequest& request) {
    auto& limits = connection_.table<PageLimitTable>();
    const auto& limit = request.limit;
    if (const auto refused = refuseWrite(limits, limitWord, request.action, limit)) {
        return *refused;
    }
    if (const auto refused = refuseName(limitWord, limit.name)) {
        return *refused;
    }
    if (limit.color > protocol::limitedColor::last || limit.duplex > protocol::limitedDuplex::last ||
        limit.enforce > 1) {
        return ruleRefused(u"The color, duplex or enforce value of the page limit is not valid.");
    }
    if (limit.action > protocol::limitAction::last) {
        return ruleRefused(u"The action of the page limit is not valid.");
    }
    return store(limits, request.action, limit);
}

protocol::StatusReply PageLimitService::remove(const protocol::DeletePageLimitRequest& request) {
    return removeFrom(connection_.table<PageLimitTable>(), limitWord, request.id);
}

} // namespace server
