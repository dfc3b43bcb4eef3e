#pragma once

#include "protocol/rules/RuleEntry.h"
#include "server/rules/AffectedService.h"
#include "server/rules/NamedTable.h"
#include "server/rules/PageLimitService.h"
#include "server/rules/PriceEntryTable.h"
#include "server/rules/PricePlanService.h"
#include "server/rules/RuleEntryService.h"
#include "server/rules/RuleGroupService.h"
#include "server/rules/ShortIdService.h"
#include "server/rules/UserMessageService.h"
#include "tests/server/support/TestEstate.h"

#include <gtest/gtest.h>

namespace server::test {

constexpr std::uint8_t adds = 1;
constexpr std::uint8_t updates = 2;

// A text too long for any record to be sent back in one frame.
inline std::u16string tooLongText() {
    return std::u16string(32767, u'x');
}

// A database for the rules, and shorthands for what tests do with it.
class RuleEstate : public TestEstate {
public:
    template <class Service>
    [[nodiscard]] Service service() {
        return Service(connection());
    }

    // The records of a listing, in its order.
    template <protocol::Record R>
    [[nodiscard]] static std::vector<R> all(Listing listing) {
        std::vector<R> records;
        while (listing.rows.next()) {
            records.push_back(readFields<R>(listing.rows));
        }
        EXPECT_EQ(static_cast<std::size_t>(listing.count), records.size());
        return records;
    }

    template <protocol::Record R>
    [[nodiscard]] std::vector<R> all(const std::string& id = {}) {
        return all<R>(connection().table<NamedTable<R>>().list(id));
    }

    [[nodiscard]] std::vector<protocol::PriceEntryRecord> prices(const std::string& planId) {
        return all<protocol::PriceEntryRecord>(connection().table<PriceEntryTable>().list(planId));
    }

    [[nodiscard]] std::vector<protocol::RuleEntryRecord> entries(const std::string& ownerId,
                                                                 std::int32_t ownerNumber = 0) {
        return all<protocol::RuleEntryRecord>(connection().table<RuleEntryTable>().list(ownerId, ownerNumber));
    }

    // The ids of the entries of an owner, in their order.
    [[nodiscard]] std::vector<std::string> entryIds(const std::string& ownerId, std::int32_t ownerNumber = 0) {
        std::vector<std::string> ids;
        for (const auto& entry : entries(ownerId, ownerNumber)) {
            ids.push_back(entry.id);
        }
        return ids;
    }

    void addGroup(const std::string& id, const std::u16string& name = u"Group") {
        EXPECT_TRUE(isDone(service<RuleGroupService>().write({.action = adds, .group = namedGroup(id, name)})));
    }

    [[nodiscard]] static protocol::RuleGroupRecord namedGroup(const std::string& id, const std::u16string& name) {
        return {.id = id, .name = name, .comment = {}, .extra1 = {}, .extra2 = {}};
    }

    [[nodiscard]] static protocol::RuleEntryRecord namedEntry(const std::string& id,
                                                              std::uint8_t type = protocol::ruleEntryType::handover,
                                                              const std::string& targetId = {}) {
        protocol::RuleEntryRecord entry;
        entry.type = type;
        entry.id = id;
        entry.name = u"Entry";
        entry.targetId = targetId;
        return entry;
    }

    [[nodiscard]] protocol::StatusReply place(const protocol::RuleEntryRecord& entry, const std::string& ownerId,
                                              std::int32_t ownerNumber = 0, const std::string& parentId = {}) {
        return service<RuleEntryService>().add(
            {.ownerNumber = ownerNumber, .parentId = parentId, .ownerId = ownerId, .entry = entry});
    }
};

} // namespace server::test
