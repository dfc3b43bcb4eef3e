#include "server/inventory/IpRangeService.h"

#include "server/commands/Refusal.h"
#include "server/commands/ReplyBuffer.h"
#include "server/inventory/IpRangeTable.h"
#include "wire/WireUuid.h"

namespace server {

using protocol::IpRangeRecord;
using protocol::StatusReply;

namespace {

using protocol::RangeOperation;

StatusReply notSaved(const wire::WideString& text) {
    return refusal(u"Not saved", text);
}

StatusReply doneIf(bool isThere) {
    return isThere ? done() : notSaved(u"The IP range was deleted in the meantime.");
}

// A range that does not span addresses yet may be stored.
std::optional<StatusReply> refuse(const IpRangeRecord& range) {
    for (const auto& text : {range.startIp, range.endIp}) {
        if (text.find_first_not_of(u" \t\r\n") != wire::WideString::npos && !parseAddress(text)) {
            return notSaved(quoted(text) + u" is not an address.");
        }
    }
    if (const auto block = blockOf(range)) {
        if (isVersion4(block->first) != isVersion4(block->last)) {
            return notSaved(u"The two ends of an IP range must be addresses of one kind.");
        }
        if (block->last < block->first) {
            return notSaved(u"The IP range ends before it begins.");
        }
    }
    if (frameDataSize(range) > largestReceivableFrame) {
        return notSaved(u"The texts of this IP range are too long to be sent back in one piece.");
    }
    return std::nullopt;
}

} // namespace

StatusReply IpRangeService::change(const protocol::ChangeIpRangeRequest& request) {
    auto& ranges = connection_.table<IpRangeTable>();
    auto range = request.range;
    if (request.operation == RangeOperation::add) {
        range.rangeId = wire::toText(wire::randomUuid());
    }
    if (request.operation == RangeOperation::add || request.operation == RangeOperation::save) {
        if (const auto refused = refuse(range)) {
            return *refused;
        }
    }
    switch (request.operation) {
    case RangeOperation::add:
        ranges.insert(range);
        return done();
    case RangeOperation::save:
        return doneIf(ranges.update(range));
    case RangeOperation::remove:
        return doneIf(ranges.remove(range.rangeId));
    default:
        return doneIf(ranges.setActive(range.rangeId, range.active));
    }
}

} // namespace server
