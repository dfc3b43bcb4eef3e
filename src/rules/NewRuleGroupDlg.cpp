#include "rules/NewRuleGroupDlg.h"

#include "client/CQVXAdminClass.h"
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

NewRuleGroupDlg::NewRuleGroupDlg(platform::Platform& platform)
    : Form(platform, u"New Rule Group"), isNew_(true), group_(client::newRecord<protocol::RuleGroupRecord>()) {}

NewRuleGroupDlg::NewRuleGroupDlg(platform::Platform& platform, protocol::RuleGroupRecord group)
    : Form(platform, u"New Rule Group"), isNew_(false), group_(std::move(group)) {}

void NewRuleGroupDlg::onInitDialog() {
    entries.setColumns({{u"Rule Type", 100}, {u"Rule Name", 150}, {u"Rule Affected", 200}});
    entries.onSelect = [this] { enableButtons(); };
    addButton.onPress = [this] { add(); };
    removeButton.onPress = [this] { remove(); };
    editButton.onPress = [this] { edit(); };
    enableButtons();
    if (isNew_) {
        client::CQVXAdminClass client;
        client.addRuleGroup(group_);
    } else {
        setTitle(u"Edit Rule Group");
        name.setText(group_.name);
        comment.setText(group_.comment);
    }
    listEntries();
}

void NewRuleGroupDlg::onOk() {
    if (name.text().empty()) {
        forms::refuseBlank(name, u"Group name can not be empty, please provide a group name",
                           u"Required field is empty");
        return;
    }
    group_.name = name.text();
    group_.comment = comment.text();
    client::CQVXAdminClass client;
    client.updateRuleGroup(group_);
    EndDialog(forms::idOk);
}

// The server removes the entries with their group. The result is the same as for OK, which must stay.
void NewRuleGroupDlg::onCancel() {
    if (isNew_ && !group_.id.empty()) {
        client::CQVXAdminClass client;
        client.deleteRuleGroup(group_.id);
    }
    EndDialog(forms::idOk);
}

const RuleEntryRecord* NewRuleGroupDlg::selectedEntry() const {
    const auto row = entries.selection();
    return row && *row < entries_.size() && !entries_[*row].id.empty() ? &entries_[*row] : nullptr;
}

void NewRuleGroupDlg::listEntries() {
    client::CQVXAdminClass client;
    client.listRuleEntries(group_.id, 0, entries_);
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
    if (entry == nullptr || !forms::confirmDelete(*this, u"Are you sure you want to delete this rule entry?")) {
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
        SavedChoice saved;
        const auto plan = plans.front();
        NewPricePlanDlg dialog(platform(), {.plans = plans, .saved = saved, .entry = entry}, plan);
        runModal(dialog);
    }
}

} // namespace rules
