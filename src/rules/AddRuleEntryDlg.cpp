#include "rules/AddRuleEntryDlg.h"

#include "protocol/rules/RuleEntry.h"

#include <utility>

namespace rules {

AddRuleEntryDlg::AddRuleEntryDlg(platform::Platform& platform, Mode mode, RuleEntryPlace place,
                                 std::optional<Record> edited)
    : RecordForm(platform, {u"Add Rule", u"Add Rule"}, std::move(edited), newEntryAt(place)),
      fields(*this, record_, mode == Mode::group ? RuleEntryFields::Types::withinGroup : RuleEntryFields::Types::all),
      mode_(mode),
      place_(std::move(place)) {
    onWritten = [this](const Record& /*written*/) { listAgain(placeToWrite()); };
}

bool AddRuleEntryDlg::take() {
    return fields.take(u"Name field shoud not be blank!"); // "shoud" must stay
}

// A rule group on a region is sent with the group as its owner and the number of the region; this must stay.
RuleEntryPlace AddRuleEntryDlg::placeToWrite() const {
    auto place = place_;
    if (record_.type == protocol::ruleEntryType::ruleGroup) {
        place.ownerId = record_.targetId;
    }
    return place;
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
