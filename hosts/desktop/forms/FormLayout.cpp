#include "hosts/desktop/forms/FormLayout.h"

#include "forms/Control.h"
#include "forms/FormWalk.h"
#include "hosts/desktop/forms/GroupWidget.h"
#include "hosts/desktop/forms/SheetTabs.h"
#include "hosts/desktop/forms/ShownText.h"
#include "hosts/desktop/forms/TabsWidget.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>

namespace desktop {
namespace {

constexpr int gap = 8;
constexpr int labelGap = 14;
constexpr int columnGap = 24;

QFormLayout* newRows() {
    auto* const rows = new QFormLayout;
    rows->setVerticalSpacing(gap);
    rows->setHorizontalSpacing(labelGap);
    rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    rows->setLabelAlignment(Qt::AlignLeft);
    rows->setFormAlignment(Qt::AlignLeft | Qt::AlignTop);
    return rows;
}

// Where nothing grows with the dialog, the extra room stays at the bottom.
void keepAtTop(const forms::Column& plan, QBoxLayout& column) {
    if (!plan.grows) {
        column.addStretch(1);
    }
}

} // namespace

void FormLayout::lay(const forms::LayoutPlan& plan, QWidget& surface, QWidget& foot) {
    QBoxLayout& column = layColumn(plan.body, surface);
    keepAtTop(plan.body, column);
    auto* const buttons = new QHBoxLayout(&foot);
    buttons->setSpacing(gap);
    buttons->addStretch(1);
    for (const forms::LineItem& item : plan.foot) {
        buttons->addWidget(widgetOf_(*item.control)->field());
    }
}

void FormLayout::levelRemarks() const {
    for (const auto& remarks : remarks_) {
        int widest = 0;
        for (QWidget* remark : remarks) {
            remark->ensurePolished();
            widest = std::max(widest, remark->sizeHint().width());
        }
        for (QWidget* remark : remarks) {
            remark->setMinimumWidth(widest);
        }
    }
}

void FormLayout::hideEmptyLines() const {
    for (const auto& [widget, line] : lines_) {
        widget->setVisible(std::ranges::any_of(line, [](const auto& item) { return item.control->visible(); }));
    }
}

QBoxLayout& FormLayout::layColumn(const forms::Column& plan, QWidget& surface) {
    auto* const column = new QVBoxLayout(&surface);
    fill(*column, plan);
    return *column;
}

void FormLayout::fill(QBoxLayout& column, const forms::Column& plan) {
    column.setSpacing(gap);
    for (const auto& section : plan.sections) {
        std::visit([&](const auto& each) { add(each, column); }, section);
    }
}

void FormLayout::add(const forms::Rows& plan, QBoxLayout& column) {
    auto* const columns = new QHBoxLayout;
    columns->setSpacing(columnGap);
    for (const auto& part : plan.columns) {
        auto* const rows = newRows();
        remarks_.emplace_back();
        for (const forms::Row& row : part) {
            addRow(row, *rows);
            if (row.line.back().remark) {
                remarks_.back().push_back(widgetOf_(*row.line.back().control)->field());
            }
        }
        columns->addLayout(rows, 1);
    }
    column.addLayout(columns, plan.stretch);
}

void FormLayout::add(const forms::Line& plan, QBoxLayout& column) {
    column.addLayout(lineOf(plan));
}

void FormLayout::add(const forms::Block& plan, QBoxLayout& column) {
    const ControlWidget& first = *widgetOf_(*plan.parts.front().control);
    if (plan.caption) {
        column.addWidget(first.caption());
    }
    if (plan.parts.size() == 1) {
        column.addWidget(first.field(), plan.stretch);
        layInside(plan.parts.front());
    } else {
        column.addLayout(abreast(plan.parts), plan.stretch);
    }
    if (!plan.below.empty()) {
        column.addLayout(lineOf(plan.below));
    }
}

void FormLayout::add(const forms::Abreast& plan, QBoxLayout& column) {
    auto* const columns = new QHBoxLayout;
    columns->setSpacing(columnGap);
    for (const forms::Column& part : plan.columns) {
        auto* const content = new QVBoxLayout;
        fill(*content, part);
        keepAtTop(part, *content);
        columns->addLayout(content, 1);
    }
    column.addLayout(columns, plan.stretch);
}

void FormLayout::add(const forms::Sheets& plan, QBoxLayout& column) {
    auto* const tabs = new SheetTabs;
    for (const forms::Sheet& sheet : plan.sheets) {
        QStringList titles;
        for (const forms::Control* control : sheet.titledBy) {
            titles.append(withoutAccessKey(shownLine(forms::readableLabel(control->label()))));
        }
        auto* const surface = new QWidget;
        keepAtTop(sheet.content, layColumn(sheet.content, *surface));
        tabs->addTab(surface, titles.join(QStringLiteral(", ")));
    }
    sheets_.push_back(tabs);
    column.addWidget(tabs, 1);
}

void FormLayout::addRow(const forms::Row& plan, QFormLayout& rows) {
    const int row = rows.rowCount();
    if (plan.choice != nullptr) {
        QWidget* const choice = widgetOf_(*plan.choice)->field();
        choice->setSizePolicy(QSizePolicy::Minimum,
                              QSizePolicy::Preferred); // level with its box
        rows.setWidget(row, QFormLayout::LabelRole, choice);
    } else if (plan.captionOf != nullptr) {
        rows.setWidget(row, QFormLayout::LabelRole, widgetOf_(*plan.captionOf)->caption());
    }
    rows.setWidget(row, plan.spans ? QFormLayout::SpanningRole : QFormLayout::FieldRole, fieldOf(plan));
}

QWidget* FormLayout::fieldOf(const forms::Row& plan) {
    if (plan.choice == nullptr && plan.line.size() == 1) {
        return widgetOf_(*plan.line.front().control)->field();
    }
    auto* const field = new QWidget;
    QHBoxLayout* const line = lineOf(plan.line);
    line->setContentsMargins(0, 0, 0, 0);
    field->setLayout(line);
    lines_.emplace_back(field, plan.line);
    return field;
}

QHBoxLayout* FormLayout::lineOf(const forms::Line& plan) const {
    auto* const line = new QHBoxLayout;
    line->setSpacing(gap);
    for (const forms::LineItem& item : plan) {
        const ControlWidget& widget = *widgetOf_(*item.control);
        if (item.caption) {
            line->addWidget(widget.caption());
        }
        line->addWidget(widget.field(), item.widens ? 1 : 0);
    }
    if (std::ranges::none_of(plan, &forms::LineItem::widens)) {
        line->addStretch(1);
    }
    return line;
}

QLayout* FormLayout::abreast(const std::vector<forms::BlockPart>& parts) {
    auto* const line = new QHBoxLayout;
    line->setSpacing(gap);
    for (const forms::BlockPart& part : parts) {
        QWidget& field = *widgetOf_(*part.control)->field();
        line->addWidget(&field, 1);
        layInside(part);
        if (!part.grows) {
            field.layout()->setAlignment(Qt::AlignTop); // if its neighbour is taller
        }
    }
    return line;
}

void FormLayout::layInside(const forms::BlockPart& part) {
    const ControlWidget& widget = *widgetOf_(*part.control);
    if (const auto* const group = dynamic_cast<const GroupWidget*>(&widget)) {
        layColumn(part.insides.front(), group->surface());
    } else if (const auto* const tabs = dynamic_cast<const TabsWidget*>(&widget)) {
        for (std::size_t page = 0; page < part.insides.size(); ++page) {
            keepAtTop(part.insides[page], layColumn(part.insides[page], tabs->surface(page)));
        }
    }
}

} // namespace desktop
