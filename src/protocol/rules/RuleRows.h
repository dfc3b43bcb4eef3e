#pragma once

#include "protocol/CatalogueRow.h"

namespace protocol {

// The commands for rule groups and entries, page limits, price plans, short ids and user messages.
inline constexpr Command ruleRows[] = {
    row(57, "ListRuleGroups", "lists the rule groups").list(ReaderForm::plain).leftOpen(),
    row(58, "WriteRuleGroup", "adds, changes or deletes a rule group"),
    row(59, "ListAffected", "lists what a rule group affects").list(ReaderForm::plain).leftOpen(),
    row(60, "WriteAffected", "adds, changes or deletes what a rule group affects"),
    row(61, "ListRuleEntries", "lists rule entries").list(ReaderForm::middle).leftOpen(),
    row(62, "RemoveRuleEntry", "removes a rule entry"),
    row(64, "WriteRuleObject", "adds, changes or deletes a page limit or a rule entry"),
    row(65, "GetPageLimit", "gets a page limit").single(ReaderForm::plain),
    row(66, "DeletePageLimit", "deletes a page limit"),
    row(67, "ListUserMessages", "lists the user messages").list(ReaderForm::middle),
    row(68, "WriteUserMessage", "adds, changes or deletes a user message"),
    row(69, "ListPricePlans", "lists the price plans").list(ReaderForm::strict).over(Connection::open),
    row(70, "WritePricePlan", "adds, changes or deletes a price plan").over(Connection::open),
    row(71, "ListPriceEntries", "lists the entries of a price plan").list(ReaderForm::strict).over(Connection::open),
    row(73, "ListPageLimits", "lists the page limits").list(ReaderForm::strict).leftOpen().guarded(),
    row(81, "ListShortIds", "lists the short ids").list(ReaderForm::strict).over(Connection::open),
    row(82, "DeleteShortId", "deletes a short id").over(Connection::open),
    row(83, "AddShortId", "adds a short id").over(Connection::open),
    row(84, "UpdateShortId", "updates a short id").over(Connection::open),
};

} // namespace protocol
