#include "server/rules/ShortIdService.h"

#include "server/rules/NamedTable.h"
#include "server/rules/WriteChecks.h"

namespace server {

namespace {

namespace writeAction = protocol::ruleWriteAction;
const wire::WideString shortIdWord = u"short id";
constexpr std::int64_t secondsOfDay = 86400;

} // namespace

protocol::StatusReply ShortIdService::add(const protocol::AddShortIdRequest& request) {
    return write(writeAction::add, request.shortId);
}

protocol::StatusReply ShortIdService::update(const protocol::UpdateShortIdRequest& request) {
    return write(writeAction::update, request.shortId);
}

protocol::StatusReply ShortIdService::write(std::uint8_t action, const protocol::ShortIdRecord& shortId) {
    auto& shortIds = connection_.table<ShortIdTable>();
    if (const auto refused = refuseWrite(shortIds, shortIdWord, action, shortId)) {
        return *refused;
    }
    if (const auto refused = refuseName(shortIdWord, shortId.name)) {
        return *refused;
    }
    if (shortId.reservedUntil && (*shortId.reservedUntil < 0 || *shortId.reservedUntil >= secondsOfDay)) {
        return ruleRefused(u"A short id must be reserved until a time of day.");
    }
    return store(shortIds, action, shortId);
}

protocol::StatusReply ShortIdService::remove(const protocol::DeleteShortIdRequest& request) {
    return removeFrom(connection_.table<ShortIdTable>(), shortIdWord, request.id);
}

} // namespace server
