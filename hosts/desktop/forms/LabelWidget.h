#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

namespace console {
class Label;
}

namespace desktop {

// A text that is only shown.
class LabelWidget final : public ControlWidget {
public:
    explicit LabelWidget(console::Label& label);

    Place place() const override { return caption() != nullptr ? Place::row : Place::block; }
    bool takesAccessKey() const override { return false; }
    std::vector<QWidget*> tabStops() const override { return {}; }

protected:
    void update(console::Aspect aspect) override;

private:
    console::Label& label_;
    QLabel* text_;
};

} // namespace desktop
