#pragma once

#include "protocol/rules/RuleEntry.h"
#include "server/store/ListQuery.h"

#include <optional>

namespace server {

// The owner of a rule entry: at most one of these is set, and none for the region 0.
struct RuleEntryOwner {
    std::optional<std::string> groupId;
    std::optional<std::string> recordId; // of a printer or a queue
    std::optional<std::int32_t> regionId;
};

// The label of a type; empty for one that does not exist.
[[nodiscard]] std::u16string_view ruleEntryTypeText(std::uint8_t type);

// The rule entries, without any checks. They are deleted with their owner. Throws StoreError.
class RuleEntryTable {
public:
    explicit RuleEntryTable(sqlite3* connection);

    [[nodiscard]] bool has(const std::string& id);
    [[nodiscard]] bool isInGroup(const std::string& id);

    // The text of the type is not stored: a list returns the text for the type.
    void insert(const protocol::RuleEntryRecord& entry, const RuleEntryOwner& owner);
    void update(const protocol::RuleEntryRecord& entry);
    void remove(const std::string& id);

    // In the order of creation. With an empty id, the entries of the region with that number.
    [[nodiscard]] Listing list(const std::string& ownerId, std::int32_t ownerNumber);

private:
    Query has_;
    Query isInGroup_;
    Query insert_;
    Query update_;
    Query remove_;
    ListQuery list_;
};

} // namespace server
