#include "rules/CNewRuleDialog.h"

#include "client/CQVXAdminClass.h"
#include "client/rules/NewRecord.h"
#include "forms/Questions.h"
#include "protocol/rules/RuleEntry.h"

#include <array>
#include <utility>

namespace rules {
namespace {

using protocol::RuleEntryRecord;
namespace ruleEntryType = protocol::ruleEntryType;

constexpr std::array<ruleEntryType::Labelled, 5> types = {{{ruleEntryType::pageLimit, u"Page limit"},
                                                           {ruleEntryType::pricePlan, u"Price plan"},
                                                           {ruleEntryType::parsePrintJob, u"Parse print job"},
                                                           {ruleEntryType::snmpQueryPrinter, u"SNMP query printer"},
                                                           {ruleEntryType::clientBilling, u"Client billing"}}};
constexpr std::size_t clientBillingRow = 4;

} // namespace

CNewRuleDialog::CNewRuleDialog(platform::Platform& platform, RuleEntryPlace place)
    : Form(platform, u"New Rule"),
      place_(std::move(place)),
      editing_(false),
      entry_(client::newRecord<RuleEntryRecord>()) {
    entry_.parentId = place_.parentId;
}

CNewRuleDialog::CNewRuleDialog(platform::Platform& platform, RuleEntryPlace place, RuleEntryRecord entry)
    : Form(platform, u"New Rule"), place_(std::move(place)), editing_(true), entry_(std::move(entry)) {}

// The type of an entry is not shown: an edited one becomes "Client billing" unless the user chooses another type. This
// must stay.
void CNewRuleDialog::onInitDialog() {
    for (const auto& [value, label] : types) {
        type.addItem(wire::WideString(label));
    }
    type.select(clientBillingRow);
    name.setText(entry_.name);
    comment.setText(entry_.comment);
    affected.fill();
    if (editing_) {
        affected.select(entry_.affectedId);
    }
}

void CNewRuleDialog::onOk() {
    if (!take()) {
        return;
    }
    client::CQVXAdminClass client;
    if (editing_) {
        client.updateRuleEntry(entry_);
    } else {
        client.addRuleEntry(0, place_.parentId, place_.ownerId, entry_);
    }
    listAgain(place_);
    EndDialog(forms::idOk);
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
    entry_.name = name.text();
    entry_.comment = comment.text();
    affected.take(entry_);
    entry_.type = types[type.selection().value_or(clientBillingRow)].type;
    return true;
}

} // namespace rules
