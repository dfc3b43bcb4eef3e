#pragma once

#include "forms/Control.h"

namespace forms {

class RadioGroup;

// One choice of a radio group; choosing it deselects the others.
class RadioButton final : public Control {
public:
    RadioButton(Container& container, RadioGroup& group, std::u16string_view label);
    void accept(ControlVisitor& visitor) override;

    [[nodiscard]] RadioGroup& group() const { return group_; }
    [[nodiscard]] bool chosen() const;
    void choose();

    std::function<void()> onChoose;
    bool userChose();

private:
    // Makes this the chosen button and notifies the host about the previous one.
    void letGoOfOther();

    RadioGroup& group_;
};

} // namespace forms
