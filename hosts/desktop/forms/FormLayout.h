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

// Places the widgets of a form: boxes in aligned rows, lists and groups across the dialog, buttons side by side, the
// standard buttons at the foot.
class FormLayout {
public:
    using Finder = std::function<ControlWidget*(const console::Control&)>;

    explicit FormLayout(Finder widgetOf) : widgetOf_(std::move(widgetOf)) {}

    void lay(console::Form& form, QWidget& surface);

private:
    using Controls = std::span<console::Control* const>;

    QBoxLayout& layContainer(const console::Container& container, QWidget& surface);
    void pairWithNeighbours(Controls controls);
    void layBlock(console::Control& control, QBoxLayout& column);
    void layRows(Controls controls, QBoxLayout& column);
    void layRow(const console::Control& control, QFormLayout& rows, bool withLabels);
    QLayout* lineOf(const console::Control& control, Controls buttons);

    Finder widgetOf_;
    std::map<const console::Control*, std::vector<console::Control*>> beside_; // what shares a box's line
    std::set<const console::Control*> shares_;                                 // what stands in another's line
};

} // namespace desktop
