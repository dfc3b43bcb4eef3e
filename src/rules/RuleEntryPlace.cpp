#include "rules/RuleEntryPlace.h"

#include "client/CQVXAdminClass.h"

namespace rules {

void listAgain(const RuleEntryPlace& place, std::int32_t ownerNumber) {
    client::CQVXAdminClass client;
    for (const auto& id : {place.ownerId, place.parentId}) {
        if (!id.empty()) {
            client.listRuleEntries(id, ownerNumber, place.entries);
        }
    }
}

} // namespace rules
