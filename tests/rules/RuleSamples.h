#pragma once

#include "forms/DropList.h"
#include "protocol/rules/Affected.h"
#include "protocol/rules/PageLimit.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/RuleGroup.h"
#include "protocol/rules/ShortId.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

// Records of the rules with the fields that most tests need.
namespace samples {

inline protocol::AffectedRecord affected(std::string id, wire::WideString name) {
    return {.id = std::move(id), .type = 2, .equals = 1, .name = std::move(name)};
}

inline protocol::RuleGroupRecord group(std::string id, const wire::WideString& name) {
    return {.id = std::move(id), .name = name, .comment = u"Comment of " + name, .extra1 = u"one", .extra2 = u"two"};
}

inline protocol::PageLimitRecord limit(std::string id, wire::WideString name) {
    protocol::PageLimitRecord record;
    record.id = std::move(id);
    record.name = std::move(name);
    record.priority = 1;
    return record;
}

inline protocol::PricePlanRecord plan(std::string id, wire::WideString name) {
    protocol::PricePlanRecord record;
    record.id = std::move(id);
    record.name = std::move(name);
    return record;
}

inline protocol::ShortIdRecord shortId(std::string_view id, wire::WideString name) {
    protocol::ShortIdRecord record;
    record.id = wire::parseUuid(std::string(id));
    record.name = std::move(name);
    return record;
}

inline protocol::RuleEntryRecord entry(std::string id, std::uint8_t type, wire::WideString name) {
    protocol::RuleEntryRecord record;
    record.type = type;
    record.id = std::move(id);
    record.typeText = u"Type " + name;
    record.name = std::move(name);
    record.affectedName = u"Staff";
    record.affectedId = "a2";
    return record;
}

inline std::vector<wire::WideString> textsOf(const forms::DropList& list) {
    std::vector<wire::WideString> texts;
    std::ranges::transform(list.items(), std::back_inserter(texts), &forms::DropListItem::text);
    return texts;
}

// Selects as the user does; fails the test when no row has the text.
inline void choose(forms::DropList& list, std::u16string_view text) {
    const auto row = std::ranges::find(list.items(), text, &forms::DropListItem::text) - list.items().begin();
    EXPECT_TRUE(list.userSelected(static_cast<std::size_t>(row))) << wire::toUtf8(text);
    EXPECT_LT(static_cast<std::size_t>(row), list.items().size()) << wire::toUtf8(text);
}

} // namespace samples
