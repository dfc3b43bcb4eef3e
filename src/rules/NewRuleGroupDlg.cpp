#include "rules/NewRuleGroupDlg.h"

#include "client/rules/NewRecord.h"
#include "forms/Questions.h"
#include "protocol/rules/RuleEntry.h"
#include "rules/AddRuleEntryDlg.h"
#include "rules/CNewRuleDialog.h"
#include "rules/NewPricePlanDlg.h"
#include "rules/PageLimitDlg.h"

#include <utility>

namespace rules {

using protocol::RuleEntryRecord;

NewRuleGroupDlg::NewRuleGroupDlg(platform::Platform& platform, std::optional<Record> edited)
    : RecordForm(platform, {u"New Rule Group", u"Edit Rule Group"}, std::move(edited), client::newRecord<Record>()) {}

void NewRuleGroupDlg::onInitDialog() {
    rules.onAdd = [this] { add(); };
    rules.onSelection = [this] { enableEdit(); };
    editButton.onPress = [this] { edit(); };
    enableEdit();
    if (isNew()) {
        client::CQVXAdminClass client;
        client.addRuleGroup(record_);
    }
    name.setText(record_.name);
    comment.setText(record_.comment);
    rules.open(record_.id);
}

bool NewRuleGroupDlg::take() {
    if (name.text().empty()) {
        forms::refuseBlank(name, u"Group name can not be empty, please provide a group name",
                           u"Required field is empty");
        return false;
    }
    record_.name = name.text();
    record_.comment = comment.text();
    return true;
}

// The server removes the entries with their group. The result is the same as for OK, which must stay.
void NewRuleGroupDlg::onCancel() {
    if (isNew() && !record_.id.empty()) {
        client::CQVXAdminClass client;
        client.deleteRuleGroup(record_.id);
    }
    EndDialog(forms::idOk);
}

void NewRuleGroupDlg::enableEdit() {
    editButton.setEnabled(rules.selected() != nullptr);
}

void NewRuleGroupDlg::add() {
    AddRuleEntryDlg dialog(platform(), AddRuleEntryDlg::Mode::group, rules.place());
    runModal(dialog);
}

void NewRuleGroupDlg::edit() {
    const auto* const selected = rules.selected();
    if (selected == nullptr) {
        return;
    }
    const RuleEntryRecord entry = *selected; // an editor may list the entries again
    if (entry.type == protocol::ruleEntryType::pageLimit) {
        editPageLimit(entry);
    } else if (entry.type == protocol::ruleEntryType::pricePlan) {
        editPricePlan(entry);
    } else {
        CNewRuleDialog dialog(platform(), rules.place(), entry);
        runModal(dialog);
    }
    rules.show();
    rules.select(entry.id);
}

// An entry without a limit opens one with its name that is not on the server; this must stay.
void NewRuleGroupDlg::editPageLimit(const RuleEntryRecord& entry) {
    auto limit = std::optional(client::newRecord<protocol::PageLimitRecord>());
    limit->name = entry.name;
    if (!entry.targetId.empty()) {
        client::CQVXAdminClass client;
        limit = client.getPageLimit(entry.targetId);
    }
    if (limit) {
        PageLimitDlg dialog(platform(), *limit);
        runModal(dialog);
    }
}

void NewRuleGroupDlg::editPricePlan(const RuleEntryRecord& entry) {
    std::vector<protocol::PricePlanRecord> plans;
    client::CQVXAdminClass client;
    client.listPricePlans(plans, entry.targetId);
    if (plans.size() == 1) {
        NewPricePlanDlg dialog(platform(), plans.front());
        dialog.onWritten = [&](const auto& plan) {
            pointAt(plan, entry);
            client.listPricePlans(plans); // although nobody shows them here; this must stay
        };
        runModal(dialog);
    }
}

} // namespace rules
