#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QRadioButton>

class QButtonGroup;

namespace forms {
class RadioButton;
} // namespace forms

namespace desktop {

// One choice of a radio group of a form.
class RadioButtonWidget final : public ControlWidget {
public:
    // The group holds the buttons of which one is chosen.
    RadioButtonWidget(forms::RadioButton& choice, QButtonGroup& group);

protected:
    void showLabel(const QString& text) override { button_->setText(text); }
    void update(forms::Aspect aspect) override;

private:
    forms::RadioButton& choice_;
    QRadioButton* button_;
};

} // namespace desktop
