#include "rules/NewRuleGroupDlg.h"

#include "client/rules/NewRecord.h"
#include "forms/Questions.h"
#include "protocol/rules/RuleEntry.h"
#include "rules/AddRuleEntryDlg.h"
#include "rules/CNewRuleDialog.h"
#include "rules/NewPricePlanDlg.h"
#include "rules/PageLimitDlg.h"

#include <algorithm>
#include <utility>

namespace rules {

using protocol::RuleEntryRecord;

NewRuleGroupDlg::NewRuleGroupDlg(platform::Platform& platform, std::optional<Record> edited)
    : RecordForm(platform, {u"New Rule Group", u"Edit Rule Group"}, std::move(edited), client::newRecord<Record>()) {}

void NewRuleGroupDlg::onInitDialog() {
    entries.setColumns({{u"Rule Type", 100}, {u"Rule Name", 150}, {u"Rule Affected", 200}});
    entries.onSelect = [this] { enableButtons(); };
    addButton.onPress = [this] { add(); };
    removeButton.onPress = [this] { remove(); };
    editButton.onPress = [this] { edit(); };
    enableButtons();
    if (isNew()) {
        client::CQVXAdminClass client;
        client.addRuleGroup(record_);
    }
    name.setText(record_.name);
    comment.setText(record_.comment);
    listEntries();
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

const RuleEntryRecord* NewRuleGroupDlg::selectedEntry() const {
    const auto row = entries.selection();
    return row && *row < entries_.size() && !entries_[*row].id.empty() ? &entries_[*row] : nullptr;
}

void NewRuleGroupDlg::listEntries() {
    client::CQVXAdminClass client;
    client.listRuleEntries(record_.id, 0, entries_);
    showEntries();
}

void NewRuleGroupDlg::showEntries() {
    std::vector<forms::ListRow> rows;
    rows.reserve(entries_.size());
    for (const auto& entry : entries_) {
        rows.push_back({.cells = {entry.typeText, entry.name, entry.affectedName}, .data = entry.id});
    }
    entries.setRows(std::move(rows));
    enableButtons();
}

void NewRuleGroupDlg::enableButtons() {
    const bool enabled = selectedEntry() != nullptr;
    removeButton.setEnabled(enabled);
    editButton.setEnabled(enabled);
}

void NewRuleGroupDlg::add() {
    AddRuleEntryDlg dialog(platform(), AddRuleEntryDlg::Mode::group, place());
    runModal(dialog);
    listEntries();
}

void NewRuleGroupDlg::remove() {
    const auto* const entry = selectedEntry();
    if (entry == nullptr ||
        !forms::confirmDelete(*this, u"Are you sure you want to delete this rule entry?", entry->name)) {
        return;
    }
    client::CQVXAdminClass client;
    client.removeRuleEntry(entry->id, entry->type);
    listEntries();
}

void NewRuleGroupDlg::edit() {
    const auto* const selected = selectedEntry();
    if (selected == nullptr) {
        return;
    }
    const RuleEntryRecord entry = *selected; // an editor may list the entries again
    if (entry.type == protocol::ruleEntryType::pageLimit) {
        editPageLimit(entry);
    } else if (entry.type == protocol::ruleEntryType::pricePlan) {
        editPricePlan(entry);
    } else {
        CNewRuleDialog dialog(platform(), place(), entry);
        runModal(dialog);
    }
    showEntries();
    const auto row = std::ranges::find(entries_, entry.id, &RuleEntryRecord::id) - entries_.begin();
    entries.select(static_cast<std::size_t>(row));
    enableButtons();
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
