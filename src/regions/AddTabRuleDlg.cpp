#include "regions/AddTabRuleDlg.h"

#include <utility>

namespace regions {

// The name's message is spelled right here, and a type without a row stays what it is, both unlike in the dialog for
// rule groups and regions. This must stay.
AddTabRuleDlg::AddTabRuleDlg(platform::Platform& platform, rules::RuleEntryPlace place, std::optional<Record> edited)
    : RuleEntryForm(platform, std::move(place), std::move(edited),
                    {.types = rules::RuleEntryFields::Types::all,
                     .blankName = u"Name field should not be blank!",
                     .typeWithoutRow = std::nullopt}) {
    onWritten = [this](const Record& /*written*/) { listAgain(placeToWrite(), this->place().ownerNumber); };
}

bool AddTabRuleDlg::take() {
    if (!RuleEntryForm::take()) {
        return false;
    }
    if (!place().parentId.empty()) {
        record_.parentId = place().parentId;
    }
    return true;
}

void AddTabRuleDlg::addRecord(client::CQVXAdminClass& client) {
    const auto to = placeToWrite();
    client.addRuleEntry(to.ownerNumber, to.parentId, to.ownerId, record_);
}

} // namespace regions
