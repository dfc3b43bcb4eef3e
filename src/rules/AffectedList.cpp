#include "rules/AffectedList.h"

#include "client/CQVXAdminClass.h"
#include "forms/Questions.h"
#include "rules/AffectedDlg.h"
#include "rules/NewItem.h"

#include <algorithm>

namespace rules {

using protocol::AffectedRecord;

AffectedList::AffectedList(forms::Container& container, platform::Platform& platform, EmptyRow emptyRow)
    : list(container, u"Affected"),
      editButton(container, u"Edit..."),
      deleteButton(container, u"Delete"),
      platform_(platform),
      emptyRow_(emptyRow) {
    editButton.setBeside(list);
    deleteButton.setBeside(list);
    list.onSelect = [this] { rowSelected(); };
    editButton.onPress = [this] { edit(); };
    deleteButton.onPress = [this] { remove(); };
}

void AffectedList::fill() {
    list.clear();
    records_.clear();
    client::CQVXAdminClass client;
    client.listAffected(records_);
    if (emptyRow_ == EmptyRow::first) {
        list.addItem({});
    }
    for (const auto& record : records_) {
        list.addItem(record.name);
    }
    list.addItem(wire::WideString(newItem));
    const auto record = savedRecord();
    list.select(record ? *record + rowsAbove() : 0);
    enableButtons(true);
}

std::optional<std::size_t> AffectedList::savedRecord() const {
    if (saved_.index && *saved_.index < records_.size()) {
        return saved_.index;
    }
    const auto match = std::ranges::find(records_, saved_.name, &AffectedRecord::name);
    return saved_.name.empty() || match == records_.end()
               ? std::nullopt
               : std::optional(static_cast<std::size_t>(match - records_.begin()));
}

void AffectedList::select(std::string_view id) {
    const auto match = std::ranges::find(records_, id, &AffectedRecord::id);
    if (match != records_.end()) {
        list.select(static_cast<std::size_t>(match - records_.begin()) + rowsAbove());
    }
}

const AffectedRecord* AffectedList::selected() const {
    const auto row = list.selection();
    const bool isRecord =
        row && *row >= rowsAbove() && *row - rowsAbove() < records_.size() && list.selectedText() != newItem;
    return isRecord ? &records_[*row - rowsAbove()] : nullptr;
}

const AffectedRecord* AffectedList::named() const {
    const auto* const record = selected();
    return record != nullptr && !record->name.empty() ? record : nullptr;
}

void AffectedList::take(protocol::RuleEntryRecord& entry) const {
    const auto* const record = selected();
    entry.affectedId = record != nullptr ? record->id : std::string();
    entry.affectedName = record != nullptr ? record->name : wire::WideString();
}

void AffectedList::setVisible(bool visible) {
    list.setVisible(visible);
    editButton.setVisible(visible);
    deleteButton.setVisible(visible);
}

void AffectedList::rowSelected() {
    if (list.selectedText() == newItem) {
        make();
    } else {
        enableButtons(!list.selectedText().empty());
    }
}

void AffectedList::make() {
    AffectedDlg dialog(platform_, {.list = records_, .saved = saved_});
    platform_.ui.runModal(dialog, platform_.ui.activeWindow());
    fill();
}

void AffectedList::edit() {
    const auto* const record = named();
    if (record == nullptr) {
        return;
    }
    saved_ = {.index = static_cast<std::size_t>(record - records_.data()), .name = record->name};
    AffectedDlg dialog(platform_, {.list = records_, .saved = saved_}, *record);
    platform_.ui.runModal(dialog, platform_.ui.activeWindow());
    fill();
}

void AffectedList::remove() {
    const auto* const record = named();
    if (record == nullptr ||
        !forms::confirmDelete(list.form(), u"Are you sure you want to delete this Affected group?")) {
        return;
    }
    client::CQVXAdminClass client;
    client.deleteAffected(record->id);
    saved_ = {};
    fill();
}

void AffectedList::enableButtons(bool enabled) {
    editButton.setEnabled(enabled);
    deleteButton.setEnabled(enabled);
}

} // namespace rules
