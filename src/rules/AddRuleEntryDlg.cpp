#include "rules/AddRuleEntryDlg.h"

#include "client/CQVXAdminClass.h"
#include "client/rules/NewRecord.h"
#include "protocol/rules/RuleEntry.h"

#include <utility>

namespace rules {

using protocol::RuleEntryRecord;

AddRuleEntryDlg::AddRuleEntryDlg(platform::Platform& platform, Mode mode, RuleEntryPlace place)
    : AddRuleEntryDlg(platform, mode, std::move(place), false, client::newRecord<RuleEntryRecord>()) {
    fields.entry.parentId = place_.parentId;
}

AddRuleEntryDlg::AddRuleEntryDlg(platform::Platform& platform, Mode mode, RuleEntryPlace place, RuleEntryRecord entry)
    : AddRuleEntryDlg(platform, mode, std::move(place), true, std::move(entry)) {}

AddRuleEntryDlg::AddRuleEntryDlg(platform::Platform& platform, Mode mode, RuleEntryPlace place, bool editing,
                                 RuleEntryRecord entry)
    : Form(platform, u"Add Rule"),
      fields(*this, std::move(entry),
             mode == Mode::group ? RuleEntryFields::Types::withinGroup : RuleEntryFields::Types::all),
      mode_(mode),
      place_(std::move(place)),
      editing_(editing) {}

void AddRuleEntryDlg::onOk() {
    // "shoud" must stay.
    if (!fields.take(u"Name field shoud not be blank!")) {
        return;
    }
    // A rule group on a region is sent with the group as its owner and the number of the region; this must stay.
    auto place = place_;
    if (fields.entry.type == protocol::ruleEntryType::ruleGroup) {
        place.ownerId = fields.entry.targetId;
    }
    write(place);
    listAgain(place);
    EndDialog(forms::idOk);
}

void AddRuleEntryDlg::write(const RuleEntryPlace& place) const {
    client::CQVXAdminClass client;
    if (editing_) {
        client.updateRuleEntry(fields.entry);
    } else if (mode_ == Mode::group) {
        client.addRuleEntry(0, place.parentId, place.ownerId, fields.entry);
    } else {
        client.addRuleEntry(place.ownerNumber, {}, place.ownerId, fields.entry);
    }
}

} // namespace rules
