#include "hosts/desktop/forms/RadioButtonWidget.h"

#include "forms/RadioButton.h"
#include "forms/RadioGroup.h"

#include <QButtonGroup>

namespace desktop {

RadioButtonWidget::RadioButtonWidget(forms::RadioButton& choice, QButtonGroup& group)
    : ControlWidget(choice), choice_(choice), button_(new QRadioButton) {
    setUp(button_);
    group.addButton(button_);
    connect(button_, &QRadioButton::toggled, this, [this](bool checked) {
        if (checked && !mirroring()) {
            choice_.userChose();
        }
    });
}

void RadioButtonWidget::update(forms::Aspect /*aspect*/) {
    // The button group unchecks the previous button by itself, and refuses to be left without a checked one.
    if (choice_.chosen()) {
        button_->setChecked(true);
    }
}

} // namespace desktop
