#pragma once

#include <functional>
#include <map>
#include <set>
#include <span>
#include <utility>
#include <vector>

class QBoxLayout;
class QFormLayout;
class QLayout;
class QWidget;

namespace console {
class Container;
class Control;
class DropList;
class Form;
} // namespace console

namespace desktop {

class ControlWidget;

// Places the widgets of a form: boxes in aligned rows, lists and groups across the dialog, buttons and groups that
// stand beside each other side by side, the standard buttons at the foot.
class FormLayout {
public:
    using Finder = std::function<ControlWidget*(const console::Control&)>;

    explicit FormLayout(Finder widgetOf) : widgetOf_(std::move(widgetOf)) {}

    void lay(console::Form& form, QWidget& surface);

private:
    using Controls = std::span<console::Control* const>;

    QBoxLayout& layContainer(const console::Container& container, QWidget& surface);
    void pairWithNeighbours(Controls controls);
    Controls besideOf(const console::Control& control) const;
    void layBlock(console::Control& control, QBoxLayout& column);
    QLayout* sideBySide(Controls groups);
    void layInside(console::Control& control);
    void layRows(Controls controls, QBoxLayout& column);
    void layRow(console::Control& control, QFormLayout& rows, bool withLabels);
    // With what stands beside each of them.
    QLayout* lineOf(Controls controls);

    Finder widgetOf_;
    std::map<const console::Control*, std::vector<console::Control*>>
        beside_;                               // what shares a line with it, or stands below it
    std::set<const console::Control*> shares_; // what stands in another's line
};

} // namespace desktop
