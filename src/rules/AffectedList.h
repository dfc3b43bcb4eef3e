#pragma once

#include "forms/EditableList.h"
#include "protocol/rules/Affected.h"
#include "protocol/rules/RuleEntry.h"
#include "rules/SavedChoice.h"

#include <cstdint>

namespace rules {

class AffectedDlg;

// The list of users and groups that a rule can affect, in a dialog of a rule.
class AffectedList final : public forms::EditableList {
public:
    // Whether there is an empty row above the records, so that a rule may affect everybody.
    enum class EmptyRow : std::uint8_t { none, first };

    AffectedList(forms::Container& container, EmptyRow emptyRow);

    // Reads the records again and selects the saved choice, or else the first row. The buttons are enabled after that,
    // whatever is selected; this must stay.
    void fill();
    // Selects the record with the id; if there is none, nothing changes.
    void select(std::string_view id);
    // The record of the selected row; null for the empty row and "<New>".
    [[nodiscard]] const protocol::AffectedRecord* selected() const;
    // Writes the selected record, or none, into the entry.
    void take(protocol::RuleEntryRecord& entry) const;
    // The name that a later fill selects if no row is saved.
    void saveName(const wire::WideString& name) { saved_.name = name; }

private:
    bool read() override;
    [[nodiscard]] std::size_t size() const override { return records_.size(); }
    [[nodiscard]] const wire::WideString& name(std::size_t record) const override { return records_[record].name; }
    [[nodiscard]] std::optional<std::size_t> rowToGoBackTo() const override;
    void followSelection() override { enableButtons(!list.selectedText().empty()); }
    [[nodiscard]] std::u16string_view deleteQuestion() const override;
    void make() override;
    void edit(std::size_t record) override;
    void remove(std::size_t record) override;
    void run(AffectedDlg& dialog);

    std::vector<protocol::AffectedRecord> records_;
    SavedChoice saved_;
};

} // namespace rules
