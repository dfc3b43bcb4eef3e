#pragma once

#include "forms/Button.h"
#include "forms/ChoiceList.h"
#include "forms/Group.h"
#include "forms/ListView.h"
#include "forms/RadioButton.h"
#include "forms/RadioGroup.h"
#include "rules/PriceFields.h"
#include "rules/PriceTable.h"

#include <functional>
#include <optional>

namespace rules {

// The prices of a plan by paper and area: their list, and the boxes with which they are added and updated.
class PapersGroup {
public:
    PapersGroup(forms::Container& container, const platform::Locale& locale);

    [[nodiscard]] const std::vector<protocol::PriceEntryRecord>& rows() const { return table_.rows(); }
    void setRows(std::vector<protocol::PriceEntryRecord> rows);
    // A row of the list is selected and waits for its update or removal.
    [[nodiscard]] bool updating() const { return updated_.has_value(); }

    // Called when updating() may have changed.
    std::function<void()> onChange;

    forms::Group group;
    forms::ListView prices{group, u"Prices"};
    forms::Button unselectButton{group, u"Unselect"};
    forms::Button addButton{group, u"Add"};
    forms::Button removeButton{group, u"Remove"};
    forms::Group type{group, u"Type"};
    forms::RadioGroup paperOrArea;
    forms::RadioButton paper{type, paperOrArea, u"Paper "}; // the blank at the end is part of the label
    forms::ChoiceList<std::uint16_t> paperList{type, u"", {.sorted = false, .belongsTo = &paper}};
    forms::RadioButton area{type, paperOrArea, u"Area"};
    forms::ChoiceList<std::uint16_t> areaList{type, u"", {.sorted = false, .belongsTo = &area}};
    forms::ChoiceList<bool> multiplierType{
        group, u"Multiplier type", {{false, u"Multiplier"}, {true, u"Absolute Price"}}};
    PriceFields fields;

private:
    [[nodiscard]] bool isAbsolute() const { return multiplierType.value() == true; }
    // The list to choose from now.
    [[nodiscard]] const forms::ChoiceList<std::uint16_t>& codes() const { return area.chosen() ? areaList : paperList; }
    // Puts the paper or area into a row, where one is selected.
    void takeCode(protocol::PriceEntryRecord& row) const;
    [[nodiscard]] protocol::PriceEntryRecord newRow(protocol::PriceKind kind) const;

    void rowSelected();
    void showRow(const protocol::PriceEntryRecord& row);
    void unselect();
    void add();
    void addMultiplier();
    void addAbsolute();
    void update();
    void remove();
    // Lists the rows again and gets ready to add.
    void finish();
    // Updates all controls to match what is chosen and selected.
    void follow();

    const platform::Locale& locale_;
    PriceTable table_;
    std::optional<std::size_t> updated_; // the row that is being updated
};

} // namespace rules
