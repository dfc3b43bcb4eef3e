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

    // Draws it as the one that Enter presses.
    void showAsDefault(bool isDefault) { button_->setDefault(isDefault); }

protected:
    void showLabel(const QString& text) override { button_->setText(text); }
    void update(forms::Aspect /*aspect*/) override {}

private:
    QPushButton* button_;
};

} // namespace desktop
