#include "server/rules/AffectedService.h"

#include "server/rules/NamedTable.h"
#include "server/rules/WriteChecks.h"

namespace server {

namespace {

const wire::WideString affectedWord = u"affected user or group";

} // namespace

protocol::StatusReply AffectedService::write(const protocol::WriteAffectedRequest& request) {
    auto& table = connection_.table<AffectedTable>();
    const protocol::AffectedRecord record{
        .id = request.id, .type = request.type, .equals = request.equals, .name = request.name};
    if (const auto refused = refuseWrite(table, affectedWord, request.action, record)) {
        return *refused;
    }
    if (const auto refused = refuseName(affectedWord, record.name)) {
        return *refused;
    }
    if (record.type != protocol::affectedType::user && record.type != protocol::affectedType::group) {
        return ruleRefused(u"Only users and groups can be affected.");
    }
    if (record.equals > protocol::affectedSense::is) {
        return ruleRefused(u"A user or group must be either affected or not.");
    }
    return store(table, request.action, record);
}

protocol::StatusReply AffectedService::remove(const protocol::DeleteAffectedRequest& request) {
    return removeFrom(connection_.table<AffectedTable>(), affectedWord, request.id);
}

} // namespace server
