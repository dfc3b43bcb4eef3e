#pragma once

#include "forms/Control.h"

namespace forms {

class RadioGroup;

// One choice of a radio group; choosing it lets go of the others.
class RadioButton final : public Control {
public:
    RadioButton(Container& container, RadioGroup& group, std::u16string_view label);
    void accept(ControlVisitor& visitor) override;

    RadioGroup& group() const { return group_; }
    bool chosen() const;
    void choose();

    std::function<void()> onChoose;
    bool userChose();

private:
    // Makes this button the chosen one and tells the host of the one that was.
    void letGoOfOther();

    RadioGroup& group_;
};

} // namespace forms
