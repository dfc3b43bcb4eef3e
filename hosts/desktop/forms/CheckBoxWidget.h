#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QCheckBox>

namespace forms {
class CheckBox;
} // namespace forms

namespace desktop {

// A check box of a form.
class CheckBoxWidget final : public ControlWidget {
public:
    explicit CheckBoxWidget(forms::CheckBox& checkBox);

protected:
    void showLabel(const QString& text) override { box_->setText(text); }
    void update(forms::Aspect aspect) override;

private:
    forms::CheckBox& checkBox_;
    QCheckBox* box_;
};

} // namespace desktop
