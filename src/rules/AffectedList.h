#pragma once

#include "forms/Button.h"
#include "forms/DropList.h"
#include "platform/Platform.h"
#include "protocol/rules/Affected.h"
#include "protocol/rules/RuleEntry.h"
#include "rules/SavedChoice.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace rules {

// The list of those whom a rule can affect, and the buttons that edit and delete them. "<New>" in the list makes one.
class AffectedList {
public:
    // Whether an empty row stands above the records, so that a rule may affect everybody.
    enum class EmptyRow : std::uint8_t { none, first };

    AffectedList(forms::Container& container, platform::Platform& platform, EmptyRow emptyRow);

    // Reads the records anew and goes back to the saved choice, else to the first row. The buttons can be pressed
    // after that, whatever is selected; this must stay.
    void fill();
    // Selects the record with the id; without one nothing changes.
    void select(std::string_view id);
    // The record of the selected row; null for the empty row and "<New>". A record of that name can't be told from it.
    const protocol::AffectedRecord* selected() const;
    // Writes the selected record, or none, into the entry.
    void take(protocol::RuleEntryRecord& entry) const;
    // What a later filling goes back to where no row is saved.
    void saveName(const wire::WideString& name) { saved_.name = name; }
    void setVisible(bool visible);

    forms::DropList list;
    forms::Button editButton;
    forms::Button deleteButton;

private:
    std::size_t rowsAbove() const { return emptyRow_ == EmptyRow::first ? 1 : 0; }
    std::optional<std::size_t> savedRecord() const;
    // Null where there is nothing to edit or delete: a record without a name counts as none too.
    const protocol::AffectedRecord* named() const;
    void rowSelected();
    void make();
    void edit();
    void remove();
    void enableButtons(bool enabled);

    platform::Platform& platform_;
    EmptyRow emptyRow_;
    std::vector<protocol::AffectedRecord> records_;
    SavedChoice saved_;
};

} // namespace rules
