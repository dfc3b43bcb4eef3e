#include "rules/AddRuleEntryDlg.h"

#include "protocol/rules/RuleEntry.h"

#include <utility>

namespace rules {
namespace {

// "shoud" must stay.
RuleEntryFields::Ways waysOf(AddRuleEntryDlg::Mode mode) {
    return {.types = mode == AddRuleEntryDlg::Mode::group ? RuleEntryFields::Types::withinGroup
                                                          : RuleEntryFields::Types::all,
            .blankName = u"Name field shoud not be blank!",
            .typeWithoutRow = protocol::ruleEntryType::clientBilling};
}

} // namespace

AddRuleEntryDlg::AddRuleEntryDlg(platform::Platform& platform, Mode mode, RuleEntryPlace place,
                                 std::optional<Record> edited)
    : RuleEntryForm(platform, std::move(place), std::move(edited), waysOf(mode)), mode_(mode) {
    onWritten = [this](const Record& /*written*/) { listAgain(placeToWrite()); };
}

void AddRuleEntryDlg::addRecord(client::CQVXAdminClass& client) {
    const auto place = placeToWrite();
    if (mode_ == Mode::group) {
        client.addRuleEntry(0, place.parentId, place.ownerId, record_);
    } else {
        client.addRuleEntry(place.ownerNumber, {}, place.ownerId, record_);
    }
}

} // namespace rules
