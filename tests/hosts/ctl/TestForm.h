#pragma once

#include "forms/CheckBox.h"
#include "forms/DateTimePicker.h"
#include "forms/DropList.h"
#include "forms/EditBox.h"
#include "forms/Form.h"
#include "forms/Group.h"
#include "forms/ListView.h"
#include "forms/Page.h"
#include "forms/RadioButton.h"
#include "forms/RadioGroup.h"
#include "forms/Tabs.h"
#include "forms/TreeView.h"

namespace hosttest {

// A form with a control of each kind that a step can act on.
class TestForm final : public forms::Form {
public:
    explicit TestForm(platform::Platform& platform) : Form(platform, u"A form") {
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
        for (const auto& region :
             {forms::TreeItem{u"North", 1, {}}, forms::TreeItem{u"South", 2, {}}, forms::TreeItem{u"Office", 3, 0U},
              forms::TreeItem{u"Office", 4, 1U}, forms::TreeItem{u"1/2", 5, 3U}}) {
            regions.addItem(region);
        }
        ask.onPress = [this] { answer = messageBox(u"Go on?", u"Warning", style); };
    }

    forms::EditBox name{*this, u"&Name"};
    forms::EditBox number{*this, u"Number", {.limit = 5, .digitsOnly = true}};
    forms::Group group{*this, u"Details"};
    forms::CheckBox hidden{group, u"Invisible"};
    forms::DropList model{group, u"Model"};
    forms::ListView drivers{*this, u"Drivers"};
    forms::DateTimePicker from{*this, u"From"};
    forms::RadioGroup choice;
    forms::RadioButton one{*this, choice, u"One"};
    forms::Button ask{*this, u"Ask"};

    forms::CheckBox limited{*this, u"Limited to"};
    forms::EditBox amount{*this, u""};
    forms::DropList unit{*this, u""};

    forms::RadioGroup kind;
    forms::RadioButton ofPaper{*this, kind, u"Paper "};
    forms::DropList paper{*this, u"", {.belongsTo = &ofPaper}};
    forms::Group print{*this, u"Print"};
    forms::EditBox printPrice{print, u"B/W"};
    forms::Group copy{*this, u"Copy"};
    forms::EditBox copyPrice{copy, u"B/W"};
    const forms::EditBox* changed = nullptr;
    forms::TreeView regions{*this, u"Regions"};
    forms::Tabs tabs{*this};
    forms::Page first{tabs, u"First"};
    forms::EditBox firstPlace{first, u"Place"};
    forms::Page second{tabs, u"Second"};
    forms::EditBox secondPlace{second, u"Place"};

    wire::WideString chosen; // the row and whether its second or first entry was
    std::uint32_t style = platform::boxStyle::okCancel;
    platform::Answer answer{};
};

} // namespace hosttest
