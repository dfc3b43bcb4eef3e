#include "rules/CNewRuleDialog.h"

#include "forms/Questions.h"

#include <utility>

namespace rules {

CNewRuleDialog::CNewRuleDialog(platform::Platform& platform, RuleEntryPlace place, std::optional<Record> edited)
    : RecordForm(platform, {u"New Rule", u"New Rule"}, std::move(edited), newEntryAt(place)), place_(std::move(place)) {
    onWritten = [this](const Record& /*written*/) { listAgain(place_); };
}

// The type of an entry is not shown: an edited one becomes "Client billing" unless the user chooses another type. This
// must stay.
void CNewRuleDialog::onInitDialog() {
    type.selectValue(protocol::ruleEntryType::clientBilling);
    name.setText(record_.name);
    comment.setText(record_.comment);
    affected.fill();
    if (!isNew()) {
        affected.select(record_.affectedId);
    }
}

// "shoud" must stay, and so must the required comment, although most rules need none.
bool CNewRuleDialog::take() {
    if (name.text().empty()) {
        forms::refuseBlank(name, u"Name field shoud not be blank!");
        return false;
    }
    if (comment.text().empty()) {
        forms::refuseBlank(comment, u"Comment field shoud not be blank!");
        return false;
    }
    if (affected.selected() == nullptr) {
        forms::refuseBlank(affected.list, u"Affected field should not be blank!");
        return false;
    }
    record_.name = name.text();
    record_.comment = comment.text();
    affected.take(record_);
    record_.type = type.value().value_or(protocol::ruleEntryType::clientBilling);
    return true;
}

void CNewRuleDialog::addRecord(client::CQVXAdminClass& client) {
    client.addRuleEntry(0, place_.parentId, place_.ownerId, record_);
}

} // namespace rules
