#include "server/rules/RuleHandlers.h"

#include "protocol/rules/Affected.h"
#include "protocol/rules/PageLimit.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/RuleGroup.h"
#include "protocol/rules/ShortId.h"
#include "protocol/rules/UserMessage.h"
#include "server/rules/AffectedService.h"
#include "server/rules/NamedTable.h"
#include "server/rules/PageLimitService.h"
#include "server/rules/PriceEntryTable.h"
#include "server/rules/PricePlanService.h"
#include "server/rules/RuleEntryService.h"
#include "server/rules/RuleGroupService.h"
#include "server/rules/ShortIdService.h"
#include "server/rules/UserMessageService.h"

namespace server {

namespace {

using namespace protocol; // the requests and records

// All records of a table, or the one whose id the request names.
template <class Table, class Request>
Listing listTable(StoreConnection& connection, const Request& request) {
    if constexpr (requires { request.filter; }) {
        return connection.table<Table>().list(request.filter);
    } else {
        return connection.table<Table>().list();
    }
}

Listing listRuleEntries(StoreConnection& connection, const ListRuleEntriesRequest& request) {
    return connection.table<RuleEntryTable>().list(request.ownerId, request.ownerNumber);
}

Listing listPriceEntries(StoreConnection& connection, const ListPriceEntriesRequest& request) {
    return connection.table<PriceEntryTable>().list(request.planId);
}

// Empty for a limit that does not exist: the connection is then closed without a reply.
std::optional<PageLimitRecord> tellPageLimit(StoreConnection& connection, const GetPageLimitRequest& request) {
    return connection.table<PageLimitTable>().find(request.id);
}

constexpr Handler handlers[] = {
    lists<ListRuleGroupsRequest, RuleGroupRecord, listTable<RuleGroupTable, ListRuleGroupsRequest>>,
    changes<RuleGroupService, &RuleGroupService::write, WriteRuleGroupRequest>,
    changes<RuleGroupService, &RuleGroupService::remove, DeleteRuleGroupRequest>,
    lists<ListAffectedRequest, AffectedRecord, listTable<AffectedTable, ListAffectedRequest>>,
    changes<AffectedService, &AffectedService::write, WriteAffectedRequest>,
    changes<AffectedService, &AffectedService::remove, DeleteAffectedRequest>,
    lists<ListRuleEntriesRequest, RuleEntryRecord, listRuleEntries>,
    changes<RuleEntryService, &RuleEntryService::remove, RemoveRuleEntryRequest>,
    changes<PageLimitService, &PageLimitService::write, WritePageLimitRequest>,
    changes<RuleEntryService, &RuleEntryService::add, AddRuleEntryRequest>,
    changes<RuleEntryService, &RuleEntryService::update, UpdateRuleEntryRequest>,
    answers<GetPageLimitRequest, tellPageLimit>,
    changes<PageLimitService, &PageLimitService::remove, DeletePageLimitRequest>,
    lists<ListUserMessagesRequest, UserMessageRecord, listTable<UserMessageTable, ListUserMessagesRequest>>,
    changes<UserMessageService, &UserMessageService::write, WriteUserMessageRequest>,
    changes<UserMessageService, &UserMessageService::remove, DeleteUserMessageRequest>,
    lists<ListPricePlansRequest, PricePlanRecord, listTable<PricePlanTable, ListPricePlansRequest>>,
    changes<PricePlanService, &PricePlanService::write, WritePricePlanRequest>,
    changes<PricePlanService, &PricePlanService::remove, DeletePricePlanRequest>,
    lists<ListPriceEntriesRequest, PriceEntryRecord, listPriceEntries>,
    lists<ListPageLimitsRequest, PageLimitName, listTable<PageLimitTable, ListPageLimitsRequest>>,
    lists<ListShortIdsRequest, ShortIdRecord, listTable<ShortIdTable, ListShortIdsRequest>>,
    changes<ShortIdService, &ShortIdService::remove, DeleteShortIdRequest>,
    changes<ShortIdService, &ShortIdService::add, AddShortIdRequest>,
    changes<ShortIdService, &ShortIdService::update, UpdateShortIdRequest>,
};

} // namespace

std::span<const Handler> ruleHandlers() {
    return handlers;
}

} // namespace server
