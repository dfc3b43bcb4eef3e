#pragma once

#include "protocol/CatalogueRow.h"
#include "protocol/rules/Affected.h"
#include "protocol/rules/PageLimit.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/RuleGroup.h"
#include "protocol/rules/ShortId.h"
#include "protocol/rules/UserMessage.h"

namespace protocol {

// The commands for rule groups and entries, page limits, price plans, short ids and user messages.
inline constexpr Command ruleRows[] = {
    row<ListRuleGroupsRequest>("lists the rule groups").list<RuleGroupRecord>(ReaderForm::plain).leftOpen(),
    row<WriteRuleGroupRequest, DeleteRuleGroupRequest>("adds, changes or deletes a rule group"),
    row<ListAffectedRequest>("lists the users and groups that rule entries can affect")
        .list<AffectedRecord>(ReaderForm::plain)
        .leftOpen(),
    row<WriteAffectedRequest, DeleteAffectedRequest>("adds, changes or deletes an affected user or group"),
    row<ListRuleEntriesRequest>("lists the rule entries of a rule group, a printer, a queue or a region")
        .list<RuleEntryRecord>(ReaderForm::middle)
        .leftOpen(),
    row<RemoveRuleEntryRequest>("removes a rule entry"),
    row<WritePageLimitRequest, AddRuleEntryRequest, UpdateRuleEntryRequest>(
        "adds or changes a page limit or a rule entry")
        .called("WriteRuleObject"),
    row<GetPageLimitRequest>("gets a page limit").single<PageLimitRecord>(ReaderForm::plain),
    row<DeletePageLimitRequest>("deletes a page limit"),
    row<ListUserMessagesRequest>("lists the user messages").list<UserMessageRecord>(ReaderForm::middle),
    row<WriteUserMessageRequest, DeleteUserMessageRequest>("adds, changes or deletes a user message"),
    row<ListPricePlansRequest>("lists the price plans, all or one")
        .list<PricePlanRecord>(ReaderForm::strict)
        .over(Connection::open),
    row<WritePricePlanRequest, DeletePricePlanRequest>("adds, changes or deletes a price plan with its prices")
        .over(Connection::open),
    row<ListPriceEntriesRequest>("lists the prices of a price plan")
        .list<PriceEntryRecord>(ReaderForm::strict)
        .over(Connection::open),
    row<ListPageLimitsRequest>("lists the names of the page limits")
        .list<PageLimitName>(ReaderForm::strict)
        .leftOpen()
        .guarded(),
    row<ListShortIdsRequest>("lists the short ids").list<ShortIdRecord>(ReaderForm::strict).over(Connection::open),
    row<DeleteShortIdRequest>("deletes a short id").over(Connection::open),
    row<AddShortIdRequest>("adds a short id").over(Connection::open),
    row<UpdateShortIdRequest>("updates a short id").over(Connection::open),
};

} // namespace protocol
