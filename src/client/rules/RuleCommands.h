#pragma once

#include "client/CQVXAdminClass2.h"
#include "protocol/rules/Affected.h"
#include "protocol/rules/PageLimit.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/RuleGroup.h"
#include "protocol/rules/ShortId.h"
#include "protocol/rules/UserMessage.h"

#include <optional>
#include <string>
#include <vector>

namespace client {

// The part of CQVXAdminClass for rule groups and entries, page limits, price plans, short ids and user messages.
//
// Lists replace the content of the vector, in the server's order, and leave it empty when there is no connection. No
// write is answered: only the next list shows its effect. The ids of new records are made with newRecord.
class RuleCommands {
public:
    explicit RuleCommands(CQVXAdminClass2& client) : client_(client) {}

    // A list that is cut short contains what arrived before, and returns false. Deleting a group deletes its entries.
    bool listRuleGroups(std::vector<protocol::RuleGroupRecord>& groups);
    bool addRuleGroup(const protocol::RuleGroupRecord& group);
    bool updateRuleGroup(const protocol::RuleGroupRecord& group);
    bool deleteRuleGroup(const std::string& id);

    // A list that is cut short contains what arrived before, and returns false.
    bool listAffected(std::vector<protocol::AffectedRecord>& affected);
    bool addAffected(const protocol::AffectedRecord& affected);
    bool updateAffected(const protocol::AffectedRecord& affected);
    bool deleteAffected(const std::string& id);

    // The entries of a rule group, a printer or a queue by its id and the number 0; with an empty id those of the
    // region with that number, which may be 0.
    bool listRuleEntries(const std::string& ownerId, std::int32_t ownerNumber,
                         std::vector<protocol::RuleEntryRecord>& entries);
    bool addRuleEntry(std::int32_t ownerNumber, const std::string& parentId, const std::string& ownerId,
                      const protocol::RuleEntryRecord& entry);
    bool updateRuleEntry(const protocol::RuleEntryRecord& entry);
    bool removeRuleEntry(const std::string& id, std::uint8_t type);

    // Two parallel lists. Throws std::runtime_error "failed to get messages" when the list is cut short.
    bool listPageLimits(std::vector<std::string>& ids, std::vector<wire::WideString>& names);
    // Empty without a connection; throws std::runtime_error "failed to get message" when the limit no longer exists.
    [[nodiscard]] std::optional<protocol::PageLimitRecord> getPageLimit(const std::string& id);
    bool addPageLimit(const protocol::PageLimitRecord& limit);
    bool updatePageLimit(const protocol::PageLimitRecord& limit);
    bool deletePageLimit(const std::string& id);

    // The price plans and short ids throw ConnectFailed without a connection, and std::runtime_error "failed to get
    // messages" when a list is cut short. The filter is the id of a plan, or empty for all.
    bool listPricePlans(std::vector<protocol::PricePlanRecord>& plans, const std::string& filter = {});
    bool listPriceEntries(const std::string& planId, std::vector<protocol::PriceEntryRecord>& entries);
    // The entries replace those that the plan had. Throws std::length_error for more than 65,535 of them.
    bool addPricePlan(const protocol::PricePlanRecord& plan, const std::vector<protocol::PriceEntryRecord>& entries);
    bool updatePricePlan(const protocol::PricePlanRecord& plan, const std::vector<protocol::PriceEntryRecord>& entries);
    bool deletePricePlan(const std::string& id);

    bool listShortIds(std::vector<protocol::ShortIdRecord>& shortIds);
    bool addShortId(const protocol::ShortIdRecord& shortId);
    bool updateShortId(const protocol::ShortIdRecord& shortId);
    bool deleteShortId(const wire::Uuid& id);

    // Throws std::runtime_error "failed to get message" when the list is cut short. A built-in message can't be
    // deleted.
    bool listUserMessages(std::vector<protocol::UserMessageRecord>& messages);
    bool addUserMessage(const protocol::UserMessageRecord& message);
    bool updateUserMessage(const protocol::UserMessageRecord& message);
    bool deleteUserMessage(const wire::Uuid& id);

private:
    bool writeAffected(std::uint8_t action, const protocol::AffectedRecord& affected);
    bool writePricePlan(std::uint8_t action, const protocol::PricePlanRecord& plan,
                        const std::vector<protocol::PriceEntryRecord>& entries);

    CQVXAdminClass2& client_;
};

} // namespace client
