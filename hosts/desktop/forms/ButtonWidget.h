#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QPushButton>

namespace console {
class Button;
}

namespace desktop {

// A push button of a form.
class ButtonWidget final : public ControlWidget {
public:
    explicit ButtonWidget(console::Button& button);

    Place place() const override { return Place::button; }
    bool takesAccessKey() const override { return true; }
    void showLabel(const QString& text) override { button_->setText(text); }
    // Draws it as the one that Enter presses.
    void showAsDefault(bool isDefault) { button_->setDefault(isDefault); }

protected:
    void update(console::Aspect /*aspect*/) override {}

private:
    QPushButton* button_;
};

} // namespace desktop
