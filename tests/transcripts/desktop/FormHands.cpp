#include "tests/transcripts/desktop/FormHands.h"

#include "forms/CheckBox.h"
#include "forms/DateTimePicker.h"
#include "forms/DropList.h"
#include "forms/FormWalk.h"
#include "forms/ListView.h"
#include "forms/TextControl.h"
#include "hosts/ctl/ControlFinder.h"
#include "hosts/ctl/DateTimeText.h"
#include "hosts/ctl/RowMenuEntry.h"
#include "hosts/desktop/look/Text.h"
#include "tests/transcripts/desktop/Hands.h"

#include <QAbstractProxyModel>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QMenu>
#include <QStyleOption>

#include <algorithm>

namespace transcripts {
namespace {

bool isDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

void type(const forms::TextControl& box, QWidget& widget, const wire::WideString& value) {
    const auto& options = box.options();
    if (options.readOnly || value.size() > options.limit ||
        (options.digitsOnly && !std::ranges::all_of(value, isDigit))) {
        throw ctl::textRefusal(box, value);
    }
    hands::type(widget, desktop::toQString(value));
}

void check(const forms::CheckBox& box, QWidget& widget, bool checked) {
    if (box.checked() != checked) {
        QStyleOption option;
        option.initFrom(&widget);
        hands::click(widget, widget.style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, &widget).center());
    }
}

// The list comes down, and the row is chosen in it by its keys.
void selectInBox(QWidget& widget, std::size_t place) {
    auto& box = dynamic_cast<QComboBox&>(widget);
    box.setFocus(Qt::TabFocusReason);
    hands::press(box, Qt::Key_F4);
    hands::press(*box.view(), Qt::Key_Home);
    for (std::size_t row = 0; row < place; ++row) {
        hands::press(*box.view(), Qt::Key_Down);
    }
    hands::press(*box.view(), Qt::Key_Return);
}

// Lists are shown in an order of their own.
void selectInList(QWidget& widget, std::size_t place) {
    auto& view = dynamic_cast<QAbstractItemView&>(widget);
    const auto& shown = dynamic_cast<const QAbstractProxyModel&>(*view.model());
    hands::click(view, shown.mapFromSource(shown.sourceModel()->index(static_cast<int>(place), 0)));
}

// Day and time are pasted in place of those that stand there, once the box beside says that there are any: while one
// types, such a box goes on to its next part by itself.
void pick(const forms::DateTimePicker& picker, QWidget& widget, const wire::WideString& value) {
    const auto picked = ctl::parseDateTime(wire::toUtf8(value));
    if (!picked) {
        throw ctl::refusal(picker, "takes a day and a time such as \"2024-12-31 23:59:00\"" +
                                       std::string(picker.options().optional ? ", or \"none\"" : ""));
    }
    auto* const isSet = widget.parentWidget()->findChild<QCheckBox*>();
    if (isSet != nullptr && picker.options().optional && isSet->isChecked() != picked->has_value()) {
        hands::click(*isSet);
    }
    if (*picked) {
        auto& edit = dynamic_cast<QDateTimeEdit&>(widget);
        const QDateTime moment(QDate((*picked)->year, (*picked)->month, (*picked)->day),
                               QTime((*picked)->hour, (*picked)->minute, (*picked)->second), Qt::UTC);
        hands::paste(edit, moment.toString(edit.displayFormat()));
    }
}

void select(forms::Control& control, QWidget& widget, const wire::WideString& value) {
    const auto place = ctl::placeAmong(control, value);
    if (dynamic_cast<forms::DropList*>(&control) != nullptr) {
        selectInBox(widget, place);
    } else {
        selectInList(widget, place);
    }
}

void set(forms::Control& control, QWidget& widget, const wire::WideString& value) {
    if (const auto* const box = dynamic_cast<forms::TextControl*>(&control)) {
        type(*box, widget, value);
    } else if (const auto* const checkBox = dynamic_cast<forms::CheckBox*>(&control)) {
        check(*checkBox, widget, ctl::checkedOrRefused(control, value));
    } else if (const auto* const picker = dynamic_cast<forms::DateTimePicker*>(&control)) {
        pick(*picker, widget, value);
    } else {
        select(control, widget, value);
    }
}

void chooseFromRowMenu(desktop::FormDialog& dialog, const ctl::RowMenuEntry& entry) {
    auto& view = dynamic_cast<QAbstractItemView&>(*dialog.widgetOf(*entry.list));
    if (!entry.list->selection()) {
        throw ctl::refusal(*entry.list, "has no selected row; select one with --select");
    }
    hands::askForMenu(view);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) {
        throw ctl::refusal(*entry.list, "can't be reached now");
    }
    hands::choose(*menu, *menu->actions().at(static_cast<qsizetype>(entry.entry)));
}

} // namespace

void performStep(desktop::FormDialog& dialog, const ctl::Step& step) {
    forms::Form& form = dialog.form();
    if (step.kind == ctl::Step::Kind::press && forms::findControls(form, step.label).empty()) {
        const auto entries = ctl::findRowEntries(form, step.label);
        if (entries.size() == 1) {
            return chooseFromRowMenu(dialog, entries.front());
        }
    }
    forms::Control& control = ctl::reachableControl(form, step);
    QWidget& widget = *dialog.widgetOf(control);
    switch (step.kind) {
    case ctl::Step::Kind::set:
        return set(control, widget, step.value);
    case ctl::Step::Kind::select:
        return select(control, widget, step.value);
    case ctl::Step::Kind::press:
        return hands::click(widget);
    case ctl::Step::Kind::answer:
        break;
    }
}

} // namespace transcripts
