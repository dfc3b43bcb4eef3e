#include "hosts/desktop/forms/CheckBoxWidget.h"

#include "forms/CheckBox.h"

namespace desktop {

CheckBoxWidget::CheckBoxWidget(forms::CheckBox& checkBox)
    : ControlWidget(checkBox), checkBox_(checkBox), box_(new QCheckBox) {
    setUp(box_);
    connect(box_, &QCheckBox::clicked, this, [this](bool checked) {
        checkBox_.userChecked(checked);
        mirror(forms::Aspect::selection); // restore the form's state in case the change was refused
    });
}

void CheckBoxWidget::update(forms::Aspect /*aspect*/) {
    box_->setChecked(checkBox_.checked());
}

} // namespace desktop
