#include "hosts/desktop/forms/FormLayout.h"

#include "forms/Button.h"
#include "forms/DropList.h"
#include "forms/Form.h"
#include "forms/Group.h"
#include "forms/Page.h"
#include "forms/RadioButton.h"
#include "forms/Tabs.h"
#include "hosts/desktop/forms/CheckBoxWidget.h"
#include "hosts/desktop/forms/GroupWidget.h"
#include "hosts/desktop/forms/LineWidget.h"
#include "hosts/desktop/forms/RadioButtonWidget.h"
#include "hosts/desktop/forms/TabsWidget.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <iterator>

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

bool isGroup(const forms::Control* control) {
    return dynamic_cast<const forms::Group*>(control) != nullptr;
}

bool growsDownwards(const QWidget& field) {
    const bool inside = field.layout() != nullptr && (field.layout()->expandingDirections() & Qt::Vertical);
    return inside || (field.sizePolicy().expandingDirections() & Qt::Vertical);
}

bool isBox(const ControlWidget& widget) {
    return widget.place() == Place::row || widget.place() == Place::field;
}

} // namespace

void FormLayout::lay(forms::Form& form, QWidget& surface) {
    QBoxLayout& column = layContainer(form, surface);
    keepAtTop(column);
    auto* const foot = new QHBoxLayout;
    foot->addStretch(1);
    for (forms::Button* button : {&form.okButton(), &form.cancelButton()}) {
        foot->addWidget(widgetOf_(*button)->field());
    }
    column.addSpacing(gap);
    column.addLayout(foot);
}

QBoxLayout& FormLayout::layContainer(const forms::Container& container, QWidget& surface) {
    auto* const column = new QVBoxLayout(&surface);
    column->setSpacing(gap);
    const Controls controls(container.controls());
    pairWithNeighbours(controls);

    std::vector<forms::Control*> rows;
    std::vector<forms::Control*> buttons;
    const auto layWhatWaits = [&] {
        layRows(rows, *column);
        if (!buttons.empty()) {
            column->addLayout(lineOf(buttons));
        }
        rows.clear();
        buttons.clear();
    };
    for (forms::Control* control : controls) {
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

// What goes with another control shares its line, and buttons that of a box that they fill or act on.
void FormLayout::pairWithNeighbours(Controls controls) {
    for (forms::Control* control : controls) {
        const forms::Control* const partner = control->beside();
        const bool holdsOthers = isGroup(control) || dynamic_cast<const forms::Tabs*>(control) != nullptr;
        const bool fits = !holdsOthers || (isGroup(control) && isGroup(partner));
        if (fits && partner != nullptr && partner != control &&
            std::ranges::find(controls, partner) != controls.end()) {
            beside_[partner].push_back(control);
            shares_.insert(control);
        }
    }
    const forms::Control* box = nullptr;
    for (forms::Control* control : controls) {
        const ControlWidget& widget = *widgetOf_(*control);
        if (widget.place() == Place::button && shares_.contains(control)) {
            continue;
        }
        if (widget.place() == Place::button && box != nullptr) {
            beside_[box].push_back(control);
            shares_.insert(control);
            continue;
        }
        const auto* const line = dynamic_cast<const LineWidget*>(&widget);
        const bool isFilledByButtons =
            dynamic_cast<const forms::DropList*>(control) != nullptr || (line != nullptr && line->filledByForm());
        box = isFilledByButtons ? control : nullptr;
    }
}

FormLayout::Controls FormLayout::besideOf(const forms::Control& control) const {
    const auto found = beside_.find(&control);
    return found != beside_.end() ? Controls(found->second) : Controls();
}

void FormLayout::layBlock(forms::Control& control, QBoxLayout& column) {
    std::vector<forms::Control*> groups{&control};
    std::vector<forms::Control*> below;
    std::ranges::partition_copy(besideOf(control), std::back_inserter(groups), std::back_inserter(below), isGroup);
    const ControlWidget& widget = *widgetOf_(control);
    if (widget.caption() != nullptr) {
        column.addWidget(widget.caption());
    }
    const auto place = column.count();
    if (groups.size() == 1) {
        column.addWidget(widget.field());
        layInside(control);
    } else {
        column.addLayout(sideBySide(groups));
    }
    const bool grows =
        std::ranges::any_of(groups, [this](const auto* each) { return growsDownwards(*widgetOf_(*each)->field()); });
    if (grows) {
        column.setStretch(place, listStretch);
    }
    if (!below.empty()) {
        column.addLayout(lineOf(below));
    }
}

QLayout* FormLayout::sideBySide(Controls groups) {
    auto* const line = new QHBoxLayout;
    line->setSpacing(gap);
    for (forms::Control* each : groups) {
        QWidget& field = *widgetOf_(*each)->field();
        line->addWidget(&field, 1);
        layInside(*each);
        if (!growsDownwards(field)) {
            field.layout()->setAlignment(Qt::AlignTop); // where its neighbour is higher
        }
    }
    return line;
}

// What stands on the control itself.
void FormLayout::layInside(forms::Control& control) {
    const ControlWidget& widget = *widgetOf_(control);
    if (const auto* const group = dynamic_cast<const GroupWidget*>(&widget)) {
        layContainer(dynamic_cast<const forms::Group&>(control), group->surface());
    } else if (const auto* const tabs = dynamic_cast<const TabsWidget*>(&widget)) {
        for (std::size_t page = 0; page < tabs->tabs().pages().size(); ++page) {
            keepAtTop(layContainer(*tabs->tabs().pages()[page], tabs->surface(page)));
        }
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
            for (forms::Control* control : part) {
                layRow(*control, *rows, withLabels);
            }
            columns->addLayout(rows, 1);
        }
    }
    const bool grows = columns->expandingDirections() & Qt::Vertical;
    column.addLayout(columns, grows ? textStretch : 0);
}

void FormLayout::layRow(forms::Control& control, QFormLayout& rows, bool withLabels) {
    const ControlWidget& widget = *widgetOf_(control);
    const Controls shared = besideOf(control);
    const int row = rows.rowCount();
    const bool isRadioButton = dynamic_cast<const RadioButtonWidget*>(&widget) != nullptr;
    const bool isChoice = isRadioButton || dynamic_cast<const CheckBoxWidget*>(&widget) != nullptr;
    if (isChoice && !shared.empty()) {
        widget.field()->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Preferred); // level with what it goes with
        rows.setWidget(row, QFormLayout::LabelRole, widget.field());
        rows.setLayout(row, QFormLayout::FieldRole, lineOf(shared));
        return;
    }
    if (widget.caption() != nullptr) {
        rows.setWidget(row, QFormLayout::LabelRole, widget.caption());
    }
    const auto role = isRadioButton || !withLabels ? QFormLayout::SpanningRole : QFormLayout::FieldRole;
    if (shared.empty()) {
        rows.setWidget(row, role, widget.field());
    } else {
        rows.setLayout(row, role, lineOf(std::array{&control}));
    }
}

QLayout* FormLayout::lineOf(Controls controls) {
    auto* const line = new QHBoxLayout;
    line->setSpacing(gap);
    bool grows = false;
    const std::function<void(const forms::Control*)> add = [&](const forms::Control* control) {
        const ControlWidget& widget = *widgetOf_(*control);
        if (shares_.contains(control) && widget.caption() != nullptr) {
            line->addWidget(widget.caption());
        }
        line->addWidget(widget.field(), !grows && isBox(widget) ? 1 : 0);
        grows = grows || isBox(widget);
        std::ranges::for_each(besideOf(*control), add);
    };
    std::ranges::for_each(controls, add);
    if (!grows) {
        line->addStretch(1);
    }
    return line;
}

} // namespace desktop
