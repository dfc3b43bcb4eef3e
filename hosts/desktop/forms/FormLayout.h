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

namespace forms {
class Container;
class Control;
class DropList;
class Form;
} // namespace forms

namespace desktop {

class ControlWidget;

// Places the widgets of a form: boxes in aligned rows, lists and groups across the dialog, buttons and groups that
// stand beside each other side by side, the standard buttons at the foot.
class FormLayout {
public:
    using Finder = std::function<ControlWidget*(const forms::Control&)>;

    explicit FormLayout(Finder widgetOf) : widgetOf_(std::move(widgetOf)) {}

    void lay(forms::Form& form, QWidget& surface);

private:
    using Controls = std::span<forms::Control* const>;

    QBoxLayout& layContainer(const forms::Container& container, QWidget& surface);
    void pairWithNeighbours(Controls controls);
    Controls besideOf(const forms::Control& control) const;
    void layBlock(forms::Control& control, QBoxLayout& column);
    QLayout* sideBySide(Controls groups);
    void layInside(forms::Control& control);
    void layRows(Controls controls, QBoxLayout& column);
    void layRow(forms::Control& control, QFormLayout& rows, bool withLabels);
    // With what stands beside each of them.
    QLayout* lineOf(Controls controls);

    Finder widgetOf_;
    std::map<const forms::Control*, std::vector<forms::Control*>>
        beside_;                             // what shares a line with it, or stands below it
    std::set<const forms::Control*> shares_; // what stands in another's line
};

} // namespace desktop
