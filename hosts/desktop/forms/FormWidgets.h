#pragma once

#include "forms/Control.h"
#include "forms/FormLabels.h"
#include "hosts/desktop/forms/ControlWidget.h"
#include "hosts/desktop/forms/FormLayout.h"

#include <map>
#include <memory>
#include <vector>

namespace forms {
class Form;
} // namespace forms

namespace desktop {

// The widgets of a form: makes them, lays them out, and sets their names and Tab order.
class FormWidgets {
public:
    // On an empty surface and an empty foot, which own the widgets.
    FormWidgets(forms::Form& form, forms::Arrangement arrangement, QWidget& surface, QWidget& foot);
    FormWidgets(const FormWidgets&) = delete;
    FormWidgets& operator=(const FormWidgets&) = delete;
    ~FormWidgets();

    // Called once. Until then everything that the form can show takes its room.
    void hideInvisible();
    [[nodiscard]] ControlWidget* find(const forms::Control& control) const;
    void controlChanged(forms::Control& control, forms::Aspect aspect);
    // Marks the button that Enter presses now.
    void showDefaultButton();
    // The control that has the keyboard focus; null for none.
    [[nodiscard]] const forms::Control* focused() const;
    // The widget with the initial focus: the one that the form has set, or else the first that takes it; null for none.
    [[nodiscard]] ControlWidget* first() const;

private:
    void orderTabStops();

    forms::Form& form_;
    std::map<const forms::Control*, std::unique_ptr<ControlWidget>> widgets_;
    std::vector<ControlWidget*> inOrder_;
    forms::FormLabels labels_;
    FormLayout layout_;
};

} // namespace desktop
