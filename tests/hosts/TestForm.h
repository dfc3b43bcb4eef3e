#pragma once

#include "console/CheckBox.h"
#include "console/DateTimePicker.h"
#include "console/DropList.h"
#include "console/EditBox.h"
#include "console/Form.h"
#include "console/Group.h"
#include "console/ListView.h"
#include "console/RadioButton.h"
#include "console/RadioGroup.h"

namespace hosttest {

// A form with a control of each kind that a step can act on.
class TestForm final : public console::Form {
public:
    explicit TestForm(console::Platform& platform) : Form(platform, u"A form") {
        model.addItem(u"Laser");
        model.addItem(u"Ink");
        drivers.setColumns({{u"Id", 0}, {u"Name", 100}, {u"Age", 50}});
        drivers.setRows({{{u"1", u"First", u"new"}, ""}, {{u"2", u"Second", u"old"}, ""}});
        drivers.setRowMenu({u"Edit", u"Delete"});
        drivers.onRowMenu = [this](std::size_t entry) {
            chosen = drivers.selectedRow()->cells[1] + (entry == 1 ? u"-" : u"+");
        };
        amount.setBeside(limited);
        unit.setBeside(amount);
        for (const auto* const text : {u"days", u"hours"}) {
            unit.addItem(text);
        }
        paper.addItem(u"A4");
        paper.addItem(u"A3");
        for (auto* const price : {&printPrice, &copyPrice}) {
            price->onChange = [this, price] { changed = price; };
        }
        ask.onPress = [this] { answer = messageBox(u"Go on?", u"Warning", style); };
    }

    console::EditBox name{*this, u"&Name"};
    console::EditBox number{*this, u"Number", {.limit = 5, .digitsOnly = true}};
    console::Group group{*this, u"Details"};
    console::CheckBox hidden{group, u"Invisible"};
    console::DropList model{group, u"Model"};
    console::ListView drivers{*this, u"Drivers"};
    console::DateTimePicker from{*this, u"From"};
    console::RadioGroup choice;
    console::RadioButton one{*this, choice, u"One"};
    console::Button ask{*this, u"Ask"};

    console::CheckBox limited{*this, u"Limited to"};
    console::EditBox amount{*this, u""};
    console::DropList unit{*this, u""};

    console::RadioGroup kind;
    console::RadioButton ofPaper{*this, kind, u"Paper "};
    console::DropList paper{*this, u"", {.belongsTo = &ofPaper}};
    console::Group print{*this, u"Print"};
    console::EditBox printPrice{print, u"B/W"};
    console::Group copy{*this, u"Copy"};
    console::EditBox copyPrice{copy, u"B/W"};
    const console::EditBox* changed = nullptr;

    wire::WideString chosen; // the row and whether its second or first entry was
    std::uint32_t style = console::boxStyle::okCancel;
    console::Answer answer{};
};

} // namespace hosttest
