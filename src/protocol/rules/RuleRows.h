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
    row(57, "ListRuleGroups", "lists the rule groups")
        .asks<ListRuleGroupsRequest>()
        .list<RuleGroupRecord>(ReaderForm::plain)
        .leftOpen(),
    row(58, "WriteRuleGroup", "adds, changes or deletes a rule group")
        .asksOneOf<WriteRuleGroupRequest, DeleteRuleGroupRequest>(),
    row(59, "ListAffected", "lists the users and groups that rule entries can affect")
        .asks<ListAffectedRequest>()
        .list<AffectedRecord>(ReaderForm::plain)
        .leftOpen(),
    row(60, "WriteAffected", "adds, changes or deletes an affected user or group")
        .asksOneOf<WriteAffectedRequest, DeleteAffectedRequest>(),
    row(61, "ListRuleEntries", "lists the rule entries of a rule group, a printer, a queue or a region")
        .asks<ListRuleEntriesRequest>()
        .list<RuleEntryRecord>(ReaderForm::middle)
        .leftOpen(),
    row(62, "RemoveRuleEntry", "removes a rule entry").asks<RemoveRuleEntryRequest>(),
    row(64, "WriteRuleObject", "adds or changes a page limit or a rule entry")
        .asksOneOf<WritePageLimitRequest, AddRuleEntryRequest, UpdateRuleEntryRequest>(),
    row(65, "GetPageLimit", "gets a page limit").asks<GetPageLimitRequest>().single<PageLimitRecord>(ReaderForm::plain),
    row(66, "DeletePageLimit", "deletes a page limit").asks<DeletePageLimitRequest>(),
    row(67, "ListUserMessages", "lists the user messages")
        .asks<ListUserMessagesRequest>()
        .list<UserMessageRecord>(ReaderForm::middle),
    row(68, "WriteUserMessage", "adds, changes or deletes a user message")
        .asksOneOf<WriteUserMessageRequest, DeleteUserMessageRequest>(),
    row(69, "ListPricePlans", "lists the price plans, all or one")
        .asks<ListPricePlansRequest>()
        .list<PricePlanRecord>(ReaderForm::strict)
        .over(Connection::open),
    row(70, "WritePricePlan", "adds, changes or deletes a price plan with its prices")
        .asksOneOf<WritePricePlanRequest, DeletePricePlanRequest>()
        .over(Connection::open),
    row(71, "ListPriceEntries", "lists the prices of a price plan")
        .asks<ListPriceEntriesRequest>()
        .list<PriceEntryRecord>(ReaderForm::strict)
        .over(Connection::open),
    row(73, "ListPageLimits", "lists the names of the page limits")
        .asks<ListPageLimitsRequest>()
        .list<PageLimitName>(ReaderForm::strict)
        .leftOpen()
        .guarded(),
    row(81, "ListShortIds", "lists the short ids")
        .asks<ListShortIdsRequest>()
        .list<ShortIdRecord>(ReaderForm::strict)
        .over(Connection::open),
    row(82, "DeleteShortId", "deletes a short id").asks<DeleteShortIdRequest>().over(Connection::open),
    row(83, "AddShortId", "adds a short id").asks<AddShortIdRequest>().over(Connection::open),
    row(84, "UpdateShortId", "updates a short id").asks<UpdateShortIdRequest>().over(Connection::open),
};

} // namespace protocol
