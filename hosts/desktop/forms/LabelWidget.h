#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

namespace forms {
class Label;
} // namespace forms

namespace desktop {

// A text that is only shown.
class LabelWidget final : public ControlWidget {
public:
    explicit LabelWidget(forms::Label& label);

    [[nodiscard]] std::vector<QWidget*> tabStops() const override { return {}; }

protected:
    void update(forms::Aspect aspect) override;

private:
    forms::Label& label_;
    QLabel* text_;
};

} // namespace desktop
