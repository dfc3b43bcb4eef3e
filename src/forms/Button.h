#pragma once

#include "forms/Control.h"

namespace forms {

// A push button.
class Button final : public Control {
public:
    // A default button is the one that Enter presses.
    Button(Container& container, std::u16string_view label, bool isDefault = false);
    void accept(ControlVisitor& visitor) override;

    [[nodiscard]] bool isDefault() const { return isDefault_; }

    std::function<void()> onPress;
    // False when the button can't be pressed now.
    bool userPressed();

private:
    bool isDefault_;
};

} // namespace forms
