#include "server/rules/RuleHandlers.h"

#include "protocol/rules/GetPageLimitRequest.h"
#include "protocol/rules/ListAffectedRequest.h"
#include "protocol/rules/ListPageLimitsRequest.h"
#include "protocol/rules/ListPriceEntriesRequest.h"
#include "protocol/rules/ListPricePlansRequest.h"
#include "protocol/rules/ListRuleEntriesRequest.h"
#include "protocol/rules/ListRuleGroupsRequest.h"
#include "protocol/rules/ListShortIdsRequest.h"
#include "protocol/rules/ListUserMessagesRequest.h"
#include "server/rules/AffectedRules.h"
#include "server/rules/NamedTable.h"
#include "server/rules/PageLimitRules.h"
#include "server/rules/PriceEntryTable.h"
#include "server/rules/PricePlanRules.h"
#include "server/rules/RuleEntryRules.h"
#include "server/rules/RuleGroupRules.h"
#include "server/rules/ShortIdRules.h"
#include "server/rules/UserMessageRules.h"

namespace server {

namespace {

using namespace protocol; // the requests and records

// All records of a table, or the one whose id the request names.
template <class Table, class Request>
Listing listTable(Estate& estate, const Request& request) {
    if constexpr (requires { request.filter; })
        return estate.table<Table>().list(request.filter);
    else
        return estate.table<Table>().list();
}

Listing listRuleEntries(Estate& estate, const ListRuleEntriesRequest& request) {
    return estate.table<RuleEntryTable>().list(request.ownerId, request.ownerNumber);
}

Listing listPriceEntries(Estate& estate, const ListPriceEntriesRequest& request) {
    return estate.table<PriceEntryTable>().list(request.planId);
}

// Nothing for a limit that is not there: the console then finds the connection closed without a reply.
std::optional<PageLimitRecord> tellPageLimit(Estate& estate, const GetPageLimitRequest& request) {
    return estate.table<PageLimitTable>().find(request.id);
}

constexpr Handler handlers[] = {
    lists<ListRuleGroupsRequest, RuleGroupRecord, listTable<RuleGroupTable, ListRuleGroupsRequest>>,
    changes<RuleGroupRules, &RuleGroupRules::write, WriteRuleGroupRequest>,
    changes<RuleGroupRules, &RuleGroupRules::remove, DeleteRuleGroupRequest>,
    lists<ListAffectedRequest, AffectedRecord, listTable<AffectedTable, ListAffectedRequest>>,
    changes<AffectedRules, &AffectedRules::write, WriteAffectedRequest>,
    changes<AffectedRules, &AffectedRules::remove, DeleteAffectedRequest>,
    lists<ListRuleEntriesRequest, RuleEntryRecord, listRuleEntries>,
    changes<RuleEntryRules, &RuleEntryRules::remove, RemoveRuleEntryRequest>,
    changes<PageLimitRules, &PageLimitRules::write, WritePageLimitRequest>,
    changes<RuleEntryRules, &RuleEntryRules::add, AddRuleEntryRequest>,
    changes<RuleEntryRules, &RuleEntryRules::update, UpdateRuleEntryRequest>,
    answers<GetPageLimitRequest, tellPageLimit>,
    changes<PageLimitRules, &PageLimitRules::remove, DeletePageLimitRequest>,
    lists<ListUserMessagesRequest, UserMessageRecord, listTable<UserMessageTable, ListUserMessagesRequest>>,
    changes<UserMessageRules, &UserMessageRules::write, WriteUserMessageRequest>,
    changes<UserMessageRules, &UserMessageRules::remove, DeleteUserMessageRequest>,
    lists<ListPricePlansRequest, PricePlanRecord, listTable<PricePlanTable, ListPricePlansRequest>>,
    changes<PricePlanRules, &PricePlanRules::write, WritePricePlanRequest>,
    changes<PricePlanRules, &PricePlanRules::remove, DeletePricePlanRequest>,
    lists<ListPriceEntriesRequest, PriceEntryRecord, listPriceEntries>,
    lists<ListPageLimitsRequest, PageLimitName, listTable<PageLimitTable, ListPageLimitsRequest>>,
    lists<ListShortIdsRequest, ShortIdRecord, listTable<ShortIdTable, ListShortIdsRequest>>,
    changes<ShortIdRules, &ShortIdRules::remove, DeleteShortIdRequest>,
    changes<ShortIdRules, &ShortIdRules::add, AddShortIdRequest>,
    changes<ShortIdRules, &ShortIdRules::update, UpdateShortIdRequest>,
};

} // namespace

std::span<const Handler> ruleHandlers() {
    return handlers;
}

} // namespace server
