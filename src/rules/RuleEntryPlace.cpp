#include "rules/RuleEntryPlace.h"

#include "client/CQVXAdminClass.h"
#include "client/rules/NewRecord.h"

namespace rules {

protocol::RuleEntryRecord newEntryAt(const RuleEntryPlace& place) {
    auto entry = client::newRecord<protocol::RuleEntryRecord>();
    entry.parentId = place.parentId;
    return entry;
}

void listAgain(const RuleEntryPlace& place, std::int32_t ownerNumber) {
    client::CQVXAdminClass client;
    for (const auto& id : {place.ownerId, place.parentId}) {
        if (!id.empty()) {
            client.listRuleEntries(id, ownerNumber, place.entries);
        }
    }
}

} // namespace rules
