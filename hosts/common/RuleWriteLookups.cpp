#include "hosts/common/RuleWriteLookups.h"

#include "protocol/rules/Affected.h"
#include "protocol/rules/PageLimit.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/RuleGroup.h"
#include "protocol/rules/ShortId.h"
#include "protocol/rules/UserMessage.h"

#include <array>

namespace common {
namespace {

using namespace protocol;

// Shows the record as it was sent.
template <class Record, class Request>
Shows showsRecord(const Request& list, const Record& record) {
    return showsChanged<Record>(list, &Record::id, record.id,
                                [=](const Record& shown) { return sameOnTheWire(shown, record); });
}

Shows groupWritten(const WriteRuleGroupRequest& request) {
    return showsRecord(ListRuleGroupsRequest{.filter = request.group.id}, request.group);
}

Shows groupDeleted(const DeleteRuleGroupRequest& request) {
    return showsGone<RuleGroupRecord>(ListRuleGroupsRequest{.filter = request.id}, &RuleGroupRecord::id, request.id);
}

Shows affectedWritten(const WriteAffectedRequest& request) {
    return showsRecord(
        ListAffectedRequest{.filter = request.id},
        AffectedRecord{.id = request.id, .type = request.type, .equals = request.equals, .name = request.name});
}

Shows affectedDeleted(const DeleteAffectedRequest& request) {
    return showsGone<AffectedRecord>(ListAffectedRequest{.filter = request.id}, &AffectedRecord::id, request.id);
}

// The server sets the text of the type, and gives a parent to an entry without one.
bool sameEntry(RuleEntryRecord shown, const RuleEntryRecord& sent) {
    shown.typeText = sent.typeText;
    shown.parentId = sent.parentId.empty() ? sent.parentId : shown.parentId;
    return sameOnTheWire(shown, sent);
}

// Where the server may have placed it: an entry that applies a rule group names that group as its owner.
std::vector<ListRuleEntriesRequest> placesOf(const AddRuleEntryRequest& request) {
    std::vector<ListRuleEntriesRequest> places;
    if (request.ownerNumber != 0 || (request.ownerId.empty() && request.parentId.empty())) {
        places.push_back({.ownerId = {}, .ownerNumber = request.ownerNumber});
    }
    for (const auto& id : {request.ownerId, request.parentId}) {
        if (!id.empty()) {
            places.push_back({.ownerId = id, .ownerNumber = 0});
        }
    }
    return places;
}

Shows entryAdded(const AddRuleEntryRequest& request) {
    return [=] {
        return std::ranges::any_of(placesOf(request), [&](const ListRuleEntriesRequest& place) {
            const auto entries = listed<RuleEntryRecord>(place);
            const auto* const entry = findById(entries, &RuleEntryRecord::id, request.entry.id);
            return entry != nullptr && sameEntry(*entry, request.entry);
        });
    };
}

Shows entryChanged(const UpdateRuleEntryRequest& request, const SeenRequests& seen) {
    return showsChangedAmong<RuleEntryRecord>(
        seen.of<ListRuleEntriesRequest>(), &RuleEntryRecord::id, request.entry.id,
        [entry = request.entry](const RuleEntryRecord& shown) { return sameEntry(shown, entry); });
}

Shows entryRemoved(const RemoveRuleEntryRequest& request, const SeenRequests& seen) {
    return showsGoneAmong<RuleEntryRecord>(seen.of<ListRuleEntriesRequest>(), &RuleEntryRecord::id, request.id);
}

// Asking for a limit that does not exist fails.
Shows limitWritten(const WritePageLimitRequest& request) {
    return [=] {
        if (findById(listed<PageLimitName>(ListPageLimitsRequest{}), &PageLimitName::id, request.limit.id) == nullptr) {
            return false;
        }
        return sameOnTheWire(client::CQVXAdminClass().getPageLimit(request.limit.id).value(), request.limit);
    };
}

Shows limitDeleted(const DeletePageLimitRequest& request) {
    return showsGone<PageLimitName>(ListPageLimitsRequest{}, &PageLimitName::id, request.id);
}

Shows messageWritten(const WriteUserMessageRequest& request) {
    return showsChanged<UserMessageRecord>(ListUserMessagesRequest{.filter = wire::toText(request.message.id)},
                                           &UserMessageRecord::id, request.message.id,
                                           [message = request.message](UserMessageRecord shown) {
                                               shown.builtIn = message.builtIn; // set by the server
                                               return sameOnTheWire(shown, message);
                                           });
}

Shows messageDeleted(const DeleteUserMessageRequest& request) {
    return showsGone<UserMessageRecord>(ListUserMessagesRequest{.filter = wire::toText(request.id)},
                                        &UserMessageRecord::id, request.id);
}

// With all of its prices, in their order.
Shows planWritten(const WritePricePlanRequest& request) {
    return [=] {
        const auto plan = showsRecord(ListPricePlansRequest{.filter = request.plan.id}, request.plan);
        return plan() &&
               std::ranges::equal(listed<PriceEntryRecord>(ListPriceEntriesRequest{.planId = request.plan.id}),
                                  request.entries, sameOnTheWire<PriceEntryRecord>);
    };
}

Shows planDeleted(const DeletePricePlanRequest& request) {
    return showsGone<PricePlanRecord>(ListPricePlansRequest{.filter = request.id}, &PricePlanRecord::id, request.id);
}

Shows shortIdAdded(const AddShortIdRequest& request) {
    return showsRecord(ListShortIdsRequest{}, request.shortId);
}

Shows shortIdChanged(const UpdateShortIdRequest& request) {
    return showsRecord(ListShortIdsRequest{}, request.shortId);
}

Shows shortIdDeleted(const DeleteShortIdRequest& request) {
    return showsGone<ShortIdRecord>(ListShortIdsRequest{}, &ShortIdRecord::id, request.id);
}

constexpr std::array ruleLookups = {
    lookup<WriteRuleGroupRequest, groupWritten>(),      lookup<DeleteRuleGroupRequest, groupDeleted>(),
    lookup<WriteAffectedRequest, affectedWritten>(),    lookup<DeleteAffectedRequest, affectedDeleted>(),
    lookup<AddRuleEntryRequest, entryAdded>(),          lookup<UpdateRuleEntryRequest, entryChanged>(),
    lookup<RemoveRuleEntryRequest, entryRemoved>(),     lookup<WritePageLimitRequest, limitWritten>(),
    lookup<DeletePageLimitRequest, limitDeleted>(),     lookup<WriteUserMessageRequest, messageWritten>(),
    lookup<DeleteUserMessageRequest, messageDeleted>(), lookup<WritePricePlanRequest, planWritten>(),
    lookup<DeletePricePlanRequest, planDeleted>(),      lookup<AddShortIdRequest, shortIdAdded>(),
    lookup<UpdateShortIdRequest, shortIdChanged>(),     lookup<DeleteShortIdRequest, shortIdDeleted>(),
};

} // namespace

std::span<const WriteLookup> ruleWriteLookups() {
    return ruleLookups;
}

} // namespace common
