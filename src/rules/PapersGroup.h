#pragma once

#include "console/Button.h"
#include "console/DropList.h"
#include "console/Group.h"
#include "console/ListView.h"
#include "console/RadioButton.h"
#include "console/RadioGroup.h"
#include "protocol/rules/PaperCode.h"
#include "rules/PriceFields.h"
#include "rules/PriceTable.h"

#include <functional>
#include <optional>

namespace rules {

// The prices of a plan by paper and area: the list of them, and the boxes with which they are added and updated.
class PapersGroup {
public:
    PapersGroup(console::Container& container, const console::Locale& locale);

    // Fills the lists to choose from; before that nothing can be chosen.
    void open();
    const std::vector<protocol::PriceEntryRecord>& rows() const { return table_.rows(); }
    void setRows(std::vector<protocol::PriceEntryRecord> rows);
    // A row of the list is selected and waits for its update or removal.
    bool updating() const { return updated_.has_value(); }

    // updating may have changed.
    std::function<void()> onChange;

    console::Group group;
    console::ListView prices{group, u"Prices"};
    console::Button unselectButton{group, u"Unselect"};
    console::Button addButton{group, u"Add"};
    console::Button removeButton{group, u"Remove"};
    console::Group type{group, u"Type"};
    console::RadioGroup paperOrArea;
    console::RadioButton paper{type, paperOrArea, u"Paper "}; // the blank behind the label is part of it
    console::DropList paperList{type, u"", {.sorted = false, .belongsTo = &paper}};
    console::RadioButton area{type, paperOrArea, u"Area"};
    console::DropList areaList{type, u"", {.sorted = false, .belongsTo = &area}};
    console::DropList multiplierType{group, u"Multiplier type"};
    PriceFields fields;

private:
    bool isAbsolute() const { return multiplierType.selection() == 1; }
    // None when none is selected in the list concerned.
    const protocol::PaperCode* chosenPaper() const;
    protocol::PriceEntryRecord newRow(std::uint8_t kind) const;

    void rowSelected();
    void showRow(const protocol::PriceEntryRecord& row);
    void unselect();
    void add();
    void addMultiplier();
    void addAbsolute();
    void update();
    void remove();
    // Lists the rows anew and is ready to add.
    void finish();
    // Brings all controls in line with what is chosen and selected.
    void follow();

    const console::Locale& locale_;
    PriceTable table_;
    std::optional<std::size_t> updated_; // the row that is being updated
};

} // namespace rules
