#include "rules/AffectedList.h"

#include "client/CQVXAdminClass.h"
#include "rules/AffectedDlg.h"

namespace rules {

using protocol::AffectedRecord;

AffectedList::AffectedList(forms::Container& container, EmptyRow emptyRow)
    : EditableList(container, u"Affected", u"Edit...") {
    setOtherRows(emptyRow == EmptyRow::first, {wire::WideString(newItem)});
}

void AffectedList::fill() {
    refill();
    enableButtons(true);
}

bool AffectedList::read() {
    records_.clear();
    return client::CQVXAdminClass().listAffected(records_);
}

std::optional<std::size_t> AffectedList::rowToGoBackTo() const {
    if (saved_.index && *saved_.index < records_.size()) {
        return rowOf(*saved_.index);
    }
    const auto match = std::ranges::find(records_, saved_.name, &AffectedRecord::name);
    const bool found = !saved_.name.empty() && match != records_.end();
    return found ? rowOf(static_cast<std::size_t>(match - records_.begin())) : 0;
}

void AffectedList::select(std::string_view id) {
    const auto match = std::ranges::find(records_, id, &AffectedRecord::id);
    if (match != records_.end()) {
        list.select(rowOf(static_cast<std::size_t>(match - records_.begin())));
    }
}

const AffectedRecord* AffectedList::selected() const {
    const auto record = selectedRecord();
    return record ? &records_[*record] : nullptr;
}

void AffectedList::take(protocol::RuleEntryRecord& entry) const {
    const auto* const record = selected();
    entry.affectedId = record != nullptr ? record->id : std::string();
    entry.affectedName = record != nullptr ? record->name : wire::WideString();
}

std::u16string_view AffectedList::deleteQuestion() const {
    return u"Are you sure you want to delete this Affected group?";
}

void AffectedList::make() {
    AffectedDlg dialog(list.form().platform());
    run(dialog);
}

void AffectedList::edit(std::size_t record) {
    saved_ = {.index = record, .name = records_[record].name};
    AffectedDlg dialog(list.form().platform(), records_[record]);
    run(dialog);
}

void AffectedList::run(AffectedDlg& dialog) {
    dialog.onWritten = [this](const AffectedRecord& written) {
        read();
        saved_.become(written, records_);
    };
    list.form().runModal(dialog);
    fill();
}

void AffectedList::remove(std::size_t record) {
    client::CQVXAdminClass().deleteAffected(records_[record].id);
    saved_ = {};
    fill();
}

} // namespace rules
