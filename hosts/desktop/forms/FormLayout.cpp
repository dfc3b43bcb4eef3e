#include "hosts/desktop/forms/FormLayout.h"

#include "console/Button.h"
#include "console/DropList.h"
#include "console/Form.h"
#include "console/Group.h"
#include "console/Page.h"
#include "console/RadioButton.h"
#include "console/Tabs.h"
#include "hosts/desktop/forms/GroupWidget.h"
#include "hosts/desktop/forms/LineWidget.h"
#include "hosts/desktop/forms/RadioButtonWidget.h"
#include "hosts/desktop/forms/TabsWidget.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace desktop {
namespace {

// A dialog with more rows than these is too high for small screens: they stand in two columns.
constexpr std::size_t rowsInOneColumn = 14;
constexpr int gap = 8;
constexpr int labelGap = 14;
// How lists and boxes of several lines share the room that a larger dialog has.
constexpr int listStretch = 3;
constexpr int textStretch = 1;

QFormLayout* newRows() {
    auto* const rows = new QFormLayout;
    rows->setVerticalSpacing(gap);
    rows->setHorizontalSpacing(labelGap);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    rows->setLabelAlignment(Qt::AlignLeft);
    rows->setFormAlignment(Qt::AlignLeft | Qt::AlignTop);
    return rows;
}

// Where nothing grows with the dialog, the room stays below.
void keepAtTop(QBoxLayout& column) {
    if (!(column.expandingDirections() & Qt::Vertical)) {
        column.addStretch(1);
    }
}

bool isBox(const ControlWidget& widget) {
    return widget.place() == Place::row || widget.place() == Place::field;
}

} // namespace

void FormLayout::lay(console::Form& form, QWidget& surface) {
    QBoxLayout& column = layContainer(form, surface);
    keepAtTop(column);
    auto* const foot = new QHBoxLayout;
    foot->addStretch(1);
    for (console::Button* button : {&form.okButton(), &form.cancelButton()}) {
        foot->addWidget(widgetOf_(*button)->field());
    }
    column.addSpacing(gap);
    column.addLayout(foot);
}

QBoxLayout& FormLayout::layContainer(const console::Container& container, QWidget& surface) {
    auto* const column = new QVBoxLayout(&surface);
    column->setSpacing(gap);
    const Controls controls(container.controls());
    pairWithNeighbours(controls);

    std::vector<console::Control*> rows;
    std::vector<console::Control*> buttons;
    const auto layWhatWaits = [&] {
        layRows(rows, *column);
        if (!buttons.empty()) {
            column->addLayout(lineOf(*buttons.front(), Controls(buttons).subspan(1)));
        }
        rows.clear();
        buttons.clear();
    };
    for (console::Control* control : controls) {
        const ControlWidget& widget = *widgetOf_(*control);
        if (shares_.contains(control)) {
            continue;
        }
        if (widget.place() == Place::button) {
            layRows(std::exchange(rows, {}), *column);
            buttons.push_back(control);
        } else if (isBox(widget)) {
            if (!buttons.empty()) {
                layWhatWaits();
            }
            rows.push_back(control);
        } else {
            layWhatWaits();
            layBlock(*control, *column);
        }
    }
    layWhatWaits();
    return *column;
}

// A list that goes with a radio button stands behind it, and buttons behind a box that they fill or act on.
void FormLayout::pairWithNeighbours(Controls controls) {
    for (console::Control* control : controls) {
        const auto* const list = dynamic_cast<const console::DropList*>(control);
        if (list == nullptr || list->options().belongsTo == nullptr) {
            continue;
        }
        const bool isNeighbour = std::ranges::find(controls, list->options().belongsTo) != controls.end();
        if (isNeighbour && beside_[list->options().belongsTo].empty()) {
            beside_[list->options().belongsTo].push_back(control);
            shares_.insert(control);
        }
    }
    const console::Control* box = nullptr;
    for (console::Control* control : controls) {
        const ControlWidget& widget = *widgetOf_(*control);
        if (widget.place() == Place::button && box != nullptr) {
            beside_[box].push_back(control);
            shares_.insert(control);
            continue;
        }
        const auto* const line = dynamic_cast<const LineWidget*>(&widget);
        const bool isFilledByButtons =
            dynamic_cast<const console::DropList*>(control) != nullptr || (line != nullptr && line->filledByForm());
        box = isFilledByButtons ? control : nullptr;
    }
}

void FormLayout::layBlock(console::Control& control, QBoxLayout& column) {
    ControlWidget& widget = *widgetOf_(control);
    if (widget.caption() != nullptr) {
        column.addWidget(widget.caption());
    }
    column.addWidget(widget.field());
    const auto place = column.count() - 1;
    if (const auto* const group = dynamic_cast<const GroupWidget*>(&widget)) {
        layContainer(dynamic_cast<const console::Group&>(control), group->surface());
    } else if (const auto* const tabs = dynamic_cast<const TabsWidget*>(&widget)) {
        for (std::size_t page = 0; page < tabs->tabs().pages().size(); ++page) {
            keepAtTop(layContainer(*tabs->tabs().pages()[page], tabs->surface(page)));
        }
    }
    const bool growsInside =
        widget.field()->layout() != nullptr && (widget.field()->layout()->expandingDirections() & Qt::Vertical);
    if (growsInside || (widget.field()->sizePolicy().expandingDirections() & Qt::Vertical)) {
        column.setStretch(place, listStretch);
    }
}

void FormLayout::layRows(Controls controls, QBoxLayout& column) {
    if (controls.empty()) {
        return;
    }
    const auto half = controls.size() > rowsInOneColumn ? (controls.size() + 1) / 2 : controls.size();
    const bool withLabels = std::ranges::any_of(controls, [this](const auto* control) {
        return widgetOf_(*control)->caption() != nullptr || beside_.contains(control);
    });
    auto* const columns = new QHBoxLayout;
    columns->setSpacing(gap * 3);
    for (const Controls part : {controls.first(half), controls.subspan(half)}) {
        if (!part.empty()) {
            auto* const rows = newRows();
            for (const console::Control* control : part) {
                layRow(*control, *rows, withLabels);
            }
            columns->addLayout(rows, 1);
        }
    }
    const bool grows = columns->expandingDirections() & Qt::Vertical;
    column.addLayout(columns, grows ? textStretch : 0);
}

void FormLayout::layRow(const console::Control& control, QFormLayout& rows, bool withLabels) {
    const ControlWidget& widget = *widgetOf_(control);
    const auto found = beside_.find(&control);
    const Controls shared = found != beside_.end() ? Controls(found->second) : Controls();
    const int row = rows.rowCount();
    const bool isChoice = dynamic_cast<const RadioButtonWidget*>(&widget) != nullptr;
    if (isChoice && !shared.empty()) {
        rows.setWidget(row, QFormLayout::LabelRole, widget.field());
        const auto further = beside_.find(shared.front());
        rows.setLayout(row, QFormLayout::FieldRole,
                       lineOf(*shared.front(), further != beside_.end() ? Controls(further->second) : Controls()));
        return;
    }
    if (widget.caption() != nullptr) {
        rows.setWidget(row, QFormLayout::LabelRole, widget.caption());
    }
    const auto role = isChoice || !withLabels ? QFormLayout::SpanningRole : QFormLayout::FieldRole;
    if (shared.empty()) {
        rows.setWidget(row, role, widget.field());
    } else {
        rows.setLayout(row, role, lineOf(control, shared));
    }
}

QLayout* FormLayout::lineOf(const console::Control& control, Controls buttons) {
    auto* const line = new QHBoxLayout;
    line->setSpacing(gap);
    const ControlWidget& first = *widgetOf_(control);
    const bool grows = isBox(first);
    line->addWidget(first.field(), grows ? 1 : 0);
    for (const console::Control* button : buttons) {
        line->addWidget(widgetOf_(*button)->field());
    }
    if (!grows) {
        line->addStretch(1);
    }
    return line;
}

} // namespace desktop
