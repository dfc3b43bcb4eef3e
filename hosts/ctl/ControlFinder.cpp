#include "hosts/ctl/ControlFinder.h"

#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/DateTimePicker.h"
#include "forms/DropList.h"
#include "forms/Form.h"
#include "forms/FormWalk.h"
#include "forms/ListView.h"
#include "forms/MultiLineEdit.h"
#include "forms/RadioButton.h"
#include "forms/TextControl.h"
#include "forms/TreeView.h"
#include "hosts/ctl/DateTimeText.h"
#include "hosts/ctl/PrintableText.h"
#include "hosts/ctl/RowMenuEntry.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace ctl {
namespace {

using forms::Control;
using Texts = std::vector<wire::WideString>;

template <class... Kinds>
bool isOneOf(const Control* control) {
    return ((dynamic_cast<const Kinds*>(control) != nullptr) || ...);
}

bool takes(const Control* control, Step::Kind kind) {
    using namespace forms;
    switch (kind) {
    case Step::Kind::set:
        return isOneOf<TextControl, CheckBox, DateTimePicker, DropList, ListView, TreeView>(control);
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
    static constexpr std::array<std::string_view, 4> names{"box or list to set", "list to select from",
                                                           "button to press", ""};
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

// The cells of one visible column.
Texts cellsOf(const forms::ListView& list, std::size_t column) {
    Texts texts;
    for (const auto& row : list.rows()) {
        texts.push_back(column < row.cells.size() ? row.cells[column] : wire::WideString());
    }
    return texts;
}

// The names of the rows of a list: the texts of each visible column. For a tree, the paths from the top, and the texts.
std::vector<Texts> rowNames(const Control& control) {
    std::vector<Texts> names;
    if (const auto* const drop = dynamic_cast<const forms::DropList*>(&control)) {
        std::ranges::transform(drop->items(), std::back_inserter(names.emplace_back()), &forms::DropListItem::text);
    } else if (const auto* const tree = dynamic_cast<const forms::TreeView*>(&control)) {
        auto& paths = names.emplace_back();
        for (std::size_t item = 0; item < tree->items().size(); ++item) {
            paths.push_back(tree->path(item));
        }
        std::ranges::transform(tree->items(), std::back_inserter(names.emplace_back()), &forms::TreeItem::text);
    } else if (const auto* const list = dynamic_cast<const forms::ListView*>(&control)) {
        for (std::size_t column = 0; column < list->columns().size(); ++column) {
            if (!list->columns()[column].hidden()) {
                names.push_back(cellsOf(*list, column));
            }
        }
    }
    return names;
}

bool hasRow(const Control& control, const wire::WideString& name) {
    return std::ranges::any_of(rowNames(control), [&](const Texts& names) {
        return std::ranges::any_of(names, [&](const wire::WideString& text) { return sameWord(text, name); }) ||
               placeOf(name, names, "row") < names.size();
    });
}

// Whether only this kind of control takes such a value. Digits are for boxes.
bool isMadeFor(const Control* control, const wire::WideString& value) {
    using namespace forms;
    if (isOneOf<CheckBox>(control)) {
        return value != u"0" && value != u"1" && parseChecked(value).has_value();
    }
    if (isOneOf<DateTimePicker>(control)) {
        return parseDateTime(wire::toUtf8(value)).has_value();
    }
    return isOneOf<DropList, ListView, TreeView>(control) && hasRow(*control, value);
}

// A check box, the number beside it and the unit beside that may share one name: the value tells which of them is
// meant.
void chooseByValue(std::vector<Control*>& found, const Step& step) {
    if (step.kind != Step::Kind::set || found.size() < 2) {
        return;
    }
    const auto isMeant = [&](const Control* control) { return isMadeFor(control, step.value); };
    const auto isText = [](const Control* control) { return isOneOf<forms::TextControl>(control); };
    if (std::ranges::count_if(found, isMeant) == 1) {
        std::erase_if(found, std::not_fn(isMeant));
    } else if (std::ranges::none_of(found, isMeant) && std::ranges::count_if(found, isText) == 1) {
        std::erase_if(found, std::not_fn(isText));
    }
}

Control& findControl(forms::Form& form, const Step& step) {
    auto found = forms::findControls(form, step.label);
    std::erase_if(found, [&](const Control* control) { return !takes(control, step.kind); });
    if (std::ranges::any_of(found, [](const Control* control) { return forms::isOffered(*control); })) {
        std::erase_if(found, [](const Control* control) { return !forms::isOffered(*control); });
    }
    chooseByValue(found, step);
    if (found.size() == 1) {
        return *found.front();
    }
    Texts choices;
    for (const Control* control : found.empty() ? forms::controlsOf(form) : found) {
        if (takes(control, step.kind) && forms::isOffered(*control)) {
            choices.push_back(forms::fullName(*control));
        }
    }
    if (step.kind == Step::Kind::press && found.empty()) {
        std::ranges::transform(rowEntriesOf(form), std::back_inserter(choices),
                               [](const RowMenuEntry& entry) { return fullName(entry); });
    }
    const std::string title = "The form \"" + shown(form.title()) + "\" has ";
    throw Failure(ExitStatus::refused, (found.empty() ? title + "no " : title + "more than one ") +
                                           std::string(nameOf(step.kind)) + " \"" + shown(step.label) + '"' +
                                           (choices.empty() ? "" : "; there is " + listed(choices)));
}

} // namespace

Failure refusal(const Control& control, const std::string& why) {
    return {ExitStatus::refused, '"' + shown(forms::fullName(control)) + "\" " + why};
}

Failure textRefusal(const forms::TextControl& box, const wire::WideString& value) {
    const auto& options = box.options();
    if (options.readOnly) {
        return refusal(box, "can't be changed");
    }
    if (value.size() > options.limit) {
        return refusal(box, "takes at most " + std::to_string(options.limit) + " characters");
    }
    return refusal(box, options.digitsOnly ? "takes digits only" : "does not take that text");
}

bool checkedOrRefused(const Control& control, const wire::WideString& value) {
    if (const auto checked = parseChecked(value)) {
        return *checked;
    }
    throw refusal(control, "takes yes or no, not \"" + shown(value) + '"');
}

Control& reachableControl(forms::Form& form, const Step& step) {
    Control& control = findControl(form, step);
    if (!forms::reveal(control) || !control.reachable()) {
        throw refusal(control, control.enabled() ? "can't be reached now" : "is disabled");
    }
    return control;
}

std::size_t placeAmong(const Control& control, const wire::WideString& value) {
    const auto columns = rowNames(control);
    for (const Texts& names : columns) {
        const auto place = placeOf(value, names, "row in \"" + shown(forms::fullName(control)) + "\" called");
        if (place < names.size()) {
            return place;
        }
    }
    const bool empty = columns.empty() || columns.front().empty();
    throw refusal(control, "has no row \"" + shown(value) + '"' +
                               (empty ? "; it is empty" : "; there is " + listed(columns.front())));
}

} // namespace ctl
