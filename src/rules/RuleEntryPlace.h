#pragma once

#include "protocol/rules/RuleEntry.h"

#include <cstdint>
#include <string>
#include <vector>

namespace rules {

// What rule entries belong to, and the list of them that a dialog's opener shows.
struct RuleEntryPlace {
    std::vector<protocol::RuleEntryRecord>& entries; // outlives the dialog
    std::string ownerId;                             // of a rule group, a printer or a queue
    std::int32_t ownerNumber = 0;                    // of a region
    std::string parentId;
};

// An entry as an administrator begins it there.
[[nodiscard]] protocol::RuleEntryRecord newEntryAt(const RuleEntryPlace& place);

// Lists the entries of the owner and then those of the parent, each if it has an id, and with the number. The second
// list replaces the first, which must stay.
void listAgain(const RuleEntryPlace& place, std::int32_t ownerNumber = 0);

} // namespace rules
