#include "hosts/ctl/FormDriver.h"

#include "forms/CheckBox.h"
#include "forms/DateTimePicker.h"
#include "forms/DropList.h"
#include "forms/FormWalk.h"
#include "forms/ListView.h"
#include "forms/RadioButton.h"
#include "forms/TextControl.h"
#include "forms/TreeView.h"
#include "hosts/ctl/ControlFinder.h"
#include "hosts/ctl/DateTimeText.h"
#include "hosts/ctl/RowMenuEntry.h"

#include <vector>

namespace ctl {
namespace {

using forms::Control;

void type(forms::TextControl& box, const wire::WideString& value) {
    if (!box.userTyped(value)) {
        throw textRefusal(box, value);
    }
}

void select(Control& control, const wire::WideString& value) {
    const auto place = placeAmong(control, value);
    if (auto* const drop = dynamic_cast<forms::DropList*>(&control)) {
        drop->userSelected(place);
    } else if (auto* const list = dynamic_cast<forms::ListView*>(&control)) {
        list->userSelected(place);
    } else if (auto* const tree = dynamic_cast<forms::TreeView*>(&control)) {
        tree->userSelected(place);
    }
}

void set(Control& control, const wire::WideString& value) {
    if (auto* const box = dynamic_cast<forms::TextControl*>(&control)) {
        type(*box, value);
    } else if (auto* const check = dynamic_cast<forms::CheckBox*>(&control)) {
        check->userChecked(checkedOrRefused(control, value));
    } else if (auto* const picker = dynamic_cast<forms::DateTimePicker*>(&control)) {
        const auto picked = parseDateTime(wire::toUtf8(value));
        if (!picked || !picker->userPicked(*picked)) {
            throw refusal(control, "takes a day and a time such as \"2024-12-31 23:59:00\"" +
                                       std::string(picker->options().optional ? ", or \"none\"" : ""));
        }
    } else {
        select(control, value);
    }
}

void press(Control& control) {
    if (auto* const button = dynamic_cast<forms::Button*>(&control)) {
        button->userPressed();
    } else if (auto* const radio = dynamic_cast<forms::RadioButton*>(&control)) {
        radio->userChose();
    }
}

void chooseFromRowMenu(const RowMenuEntry& entry) {
    forms::ListView& list = *entry.list;
    if (!forms::reveal(list) || !list.reachable()) {
        throw refusal(list, list.enabled() ? "can't be reached now" : "is disabled");
    }
    if (!list.selection()) {
        throw refusal(list, "has no selected row; select one with --select");
    }
    list.userChoseFromRowMenu(*list.selection(), entry.entry);
}

} // namespace

void perform(forms::Form& form, const Step& step) {
    if (step.kind == Step::Kind::press) {
        // A button of that name takes precedence.
        const auto entries = forms::findControls(form, step.label).empty() ? findRowEntries(form, step.label)
                                                                           : std::vector<RowMenuEntry>();
        if (entries.size() == 1) {
            chooseFromRowMenu(entries.front());
            return;
        }
    }
    Control& control = reachableControl(form, step);
    switch (step.kind) {
    case Step::Kind::set:
        set(control, step.value);
        break;
    case Step::Kind::select:
        select(control, step.value);
        break;
    case Step::Kind::press:
        press(control);
        break;
    case Step::Kind::answer:
        break;
    }
    if (!form.ended()) {
        control.userLeft();
    }
}

} // namespace ctl
