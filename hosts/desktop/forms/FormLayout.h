#pragma once

#include "forms/LayoutPlan.h"

#include <functional>
#include <utility>
#include <vector>

class QBoxLayout;
class QFormLayout;
class QHBoxLayout;
class QLayout;
class QWidget;

namespace desktop {

class ControlWidget;
class SheetTabs;

// Places the widgets of a form according to its plan.
class FormLayout {
public:
    using Finder = std::function<ControlWidget*(const forms::Control&)>;

    explicit FormLayout(Finder widgetOf) : widgetOf_(std::move(widgetOf)) {}

    // Called once, on an empty surface and an empty foot.
    void lay(const forms::LayoutPlan& plan, QWidget& surface, QWidget& foot);
    // Called once the controls show their texts: remarks below one another get the same width.
    void levelRemarks() const;
    // Lines of which nothing is visible leave no gap.
    void hideEmptyLines() const;
    // The bars of the tabs of sheets.
    [[nodiscard]] const std::vector<SheetTabs*>& sheets() const { return sheets_; }

private:
    QBoxLayout& layColumn(const forms::Column& plan, QWidget& surface);
    void fill(QBoxLayout& column, const forms::Column& plan);
    void add(const forms::Rows& plan, QBoxLayout& column);
    void add(const forms::Line& plan, QBoxLayout& column);
    void add(const forms::Block& plan, QBoxLayout& column);
    void add(const forms::Abreast& plan, QBoxLayout& column);
    void add(const forms::Sheets& plan, QBoxLayout& column);
    void addRow(const forms::Row& plan, QFormLayout& rows);
    QWidget* fieldOf(const forms::Row& plan);
    [[nodiscard]] QHBoxLayout* lineOf(const forms::Line& plan) const;
    QLayout* abreast(const std::vector<forms::BlockPart>& parts);
    // Lays out the controls on the control itself.
    void layInside(const forms::BlockPart& part);

    Finder widgetOf_;
    std::vector<std::pair<QWidget*, forms::Line>> lines_; // of rows, each on a widget of its own
    std::vector<SheetTabs*> sheets_;
    std::vector<std::vector<QWidget*>> remarks_; // those of each column of rows
};

} // namespace desktop
