#pragma once

#include <vector>

namespace forms {

class RadioButton;

// Radio buttons of which at most one is chosen. Not a control itself: the form places the buttons.
class RadioGroup {
public:
    [[nodiscard]] const std::vector<RadioButton*>& buttons() const { return buttons_; }
    // Null while none is chosen.
    [[nodiscard]] RadioButton* chosen() const { return chosen_; }

private:
    friend class RadioButton;
    std::vector<RadioButton*> buttons_;
    RadioButton* chosen_ = nullptr;
};

} // namespace forms
