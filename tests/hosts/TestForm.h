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
        drivers.setColumns({{u"Id", 0}, {u"Name", 100}});
        drivers.setRows({{{u"1", u"First"}, ""}, {{u"2", u"Second"}, ""}});
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

    std::uint32_t style = console::boxStyle::okCancel;
    console::Answer answer{};
};

} // namespace hosttest
