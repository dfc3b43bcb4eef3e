#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QPushButton>

namespace forms {
class Button;
} // namespace forms

namespace desktop {

// A push button of a form.
class ButtonWidget final : public ControlWidget {
public:
    explicit ButtonWidget(forms::Button& button);

    Place place() const override { return Place::button; }
    bool takesAccessKey() const override { return true; }
    void showLabel(const QString& text) override { button_->setText(text); }
    // Draws it as the one that Enter presses.
    void showAsDefault(bool isDefault) { button_->setDefault(isDefault); }

protected:
    void update(forms::Aspect /*aspect*/) override {}

private:
    QPushButton* button_;
};

} // namespace desktop
