#pragma once

#include "forms/Control.h"

namespace forms {

// A box that is checked or not.
class CheckBox final : public Control {
public:
    CheckBox(Container& container, std::u16string_view label);
    void accept(ControlVisitor& visitor) override;

    [[nodiscard]] bool checked() const { return checked_; }
    void setChecked(bool checked);

    std::function<void()> onChange;
    bool userChecked(bool checked);

private:
    bool checked_ = false;
};

} // namespace forms
