#include "hosts/ctl/FormDriver.h"

#include "console/CheckBox.h"
#include "console/DropList.h"
#include "console/FormWalk.h"
#include "console/ListView.h"
#include "console/MultiLineEdit.h"
#include "console/RadioButton.h"
#include "console/TextControl.h"
#include "console/TreeView.h"
#include "hosts/ctl/DateTimeText.h"
#include "hosts/ctl/Failure.h"
#include "hosts/ctl/RowEntry.h"
#include "hosts/ctl/Words.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace ctl {
namespace {

using console::Control;
using Texts = std::vector<wire::WideString>;

template <class... Kinds>
bool isOneOf(const Control* control) {
    return ((dynamic_cast<const Kinds*>(control) != nullptr) || ...);
}

bool takes(const Control* control, Step::Kind kind) {
    using namespace console;
    switch (kind) {
    case Step::Kind::set:
        return isOneOf<TextControl, CheckBox, DateTimePicker>(control);
    case Step::Kind::select:
        return isOneOf<DropList, ListView, TreeView>(control);
    case Step::Kind::press:
        return isOneOf<Button, RadioButton>(control);
    case Step::Kind::answer:
        break;
    }
    return false;
}

std::string_view nameOf(Step::Kind kind) {
    static constexpr std::array<std::string_view, 4> names{"box to set", "list to select from", "button to press", ""};
    return names[static_cast<std::size_t>(kind)];
}

std::optional<bool> parseChecked(const wire::WideString& value) {
    for (const auto* const word : {u"yes", u"on", u"true", u"1"}) {
        if (sameWord(value, word)) {
            return true;
        }
    }
    for (const auto* const word : {u"no", u"off", u"false", u"0"}) {
        if (sameWord(value, word)) {
            return false;
        }
    }
    return std::nullopt;
}

// A check box and the box beside it may have one name: the value tells which of them is meant. Digits are for the box.
void chooseByValue(std::vector<Control*>& found, const Step& step) {
    const auto isCheck = [](const Control* control) { return isOneOf<console::CheckBox>(control); };
    if (step.kind == Step::Kind::set && found.size() == 2 && std::ranges::count_if(found, isCheck) == 1) {
        const bool isDigit = step.value == u"0" || step.value == u"1";
        const bool toCheck = !isDigit && parseChecked(step.value).has_value();
        std::erase_if(found, [&](const Control* control) { return isCheck(control) != toCheck; });
    }
}

Control& findControl(console::Form& form, const Step& step) {
    auto found = console::findControls(form, step.label);
    std::erase_if(found, [&](const Control* control) { return !takes(control, step.kind); });
    chooseByValue(found, step);
    if (found.size() == 1) {
        return *found.front();
    }
    Texts choices;
    for (const Control* control : found.empty() ? console::controlsOf(form) : found) {
        if (takes(control, step.kind) && control->visible()) {
            choices.push_back(console::fullName(*control));
        }
    }
    if (step.kind == Step::Kind::press && found.empty()) {
        std::ranges::transform(rowEntriesOf(form), std::back_inserter(choices),
                               [](const RowEntry& entry) { return fullName(entry); });
    }
    const std::string title = "The form \"" + shown(form.title()) + "\" has ";
    throw Failure(ExitStatus::refused, (found.empty() ? title + "no " : title + "more than one ") +
                                           std::string(nameOf(step.kind)) + " \"" + shown(step.label) + '"' +
                                           (choices.empty() ? "" : "; there is " + listed(choices)));
}

Failure refusal(const Control& control, const std::string& why) {
    return {ExitStatus::refused, '"' + shown(console::fullName(control)) + "\" " + why};
}

bool checkedOrRefused(const Control& control, const wire::WideString& value) {
    if (const auto checked = parseChecked(value)) {
        return *checked;
    }
    throw refusal(control, "takes yes or no, not \"" + shown(value) + '"');
}

void type(console::TextControl& box, const wire::WideString& value) {
    const auto& options = box.options();
    if (box.userTyped(value)) {
        return;
    }
    if (options.readOnly) {
        throw refusal(box, "can't be changed");
    }
    if (value.size() > options.limit) {
        throw refusal(box, "takes at most " + std::to_string(options.limit) + " characters");
    }
    throw refusal(box, options.digitsOnly ? "takes digits only" : "does not take that text");
}

void set(Control& control, const wire::WideString& value) {
    if (auto* const box = dynamic_cast<console::TextControl*>(&control)) {
        type(*box, value);
    } else if (auto* const check = dynamic_cast<console::CheckBox*>(&control)) {
        check->userChecked(checkedOrRefused(control, value));
    } else if (auto* const picker = dynamic_cast<console::DateTimePicker*>(&control)) {
        const auto picked = parseDateTime(wire::toUtf8(value));
        if (!picked || !picker->userPicked(*picked)) {
            throw refusal(control, "takes a day and a time such as \"2024-12-31 23:59:00\"" +
                                       std::string(picker->options().optional ? ", or \"none\"" : ""));
        }
    }
}

std::size_t placeAmong(const Control& control, const wire::WideString& value, const Texts& rows) {
    const auto place = placeOf(value, rows, "row in \"" + shown(console::fullName(control)) + "\" called");
    if (place == rows.size()) {
        throw refusal(control, "has no row \"" + shown(value) + '"' +
                                   (rows.empty() ? "; it is empty" : "; there is " + listed(rows)));
    }
    return place;
}

// The first cell of each row that people see.
Texts firstCells(const console::ListView& list) {
    const auto column = static_cast<std::size_t>(
        std::ranges::find_if(list.columns(), [](const auto& one) { return !one.hidden(); }) - list.columns().begin());
    Texts texts;
    for (const auto& row : list.rows()) {
        texts.push_back(column < row.cells.size() ? row.cells[column] : wire::WideString());
    }
    return texts;
}

void select(Control& control, const wire::WideString& value) {
    Texts rows;
    if (auto* const drop = dynamic_cast<console::DropList*>(&control)) {
        std::ranges::transform(drop->items(), std::back_inserter(rows), &console::DropListItem::text);
        drop->userSelected(placeAmong(control, value, rows));
    } else if (auto* const list = dynamic_cast<console::ListView*>(&control)) {
        list->userSelected(placeAmong(control, value, firstCells(*list)));
    } else if (auto* const tree = dynamic_cast<console::TreeView*>(&control)) {
        std::ranges::transform(tree->items(), std::back_inserter(rows), &console::TreeItem::text);
        tree->userSelected(placeAmong(control, value, rows));
    }
}

void press(Control& control) {
    if (auto* const button = dynamic_cast<console::Button*>(&control)) {
        button->userPressed();
    } else if (auto* const radio = dynamic_cast<console::RadioButton*>(&control)) {
        radio->userChose();
    }
}

void chooseFromRowMenu(const RowEntry& entry) {
    console::ListView& list = *entry.list;
    if (!console::reveal(list) || !list.reachable()) {
        throw refusal(list, list.enabled() ? "can't be reached now" : "is disabled");
    }
    if (!list.selection()) {
        throw refusal(list, "has no selected row; select one with --select");
    }
    list.userChoseFromRowMenu(*list.selection(), entry.entry);
}

} // namespace

void perform(console::Form& form, const Step& step) {
    if (step.kind == Step::Kind::press) {
        // A button of that name comes first.
        const auto entries = console::findControls(form, step.label).empty() ? findRowEntries(form, step.label)
                                                                             : std::vector<RowEntry>();
        if (entries.size() == 1) {
            chooseFromRowMenu(entries.front());
            return;
        }
    }
    Control& control = findControl(form, step);
    if (!console::reveal(control) || !control.reachable()) {
        throw refusal(control, control.enabled() ? "can't be reached now" : "is disabled");
    }
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
