#pragma once

#include "forms/Control.h"

namespace forms {

// A text that is only shown; with a label in front when it has one ("Physical Status" and its value).
class Label final : public Control {
public:
    Label(Container& container, std::u16string_view label, std::u16string_view text = {});
    void accept(ControlVisitor& visitor) override;

    [[nodiscard]] const wire::WideString& text() const { return text_; }
    void setText(wire::WideString text);

private:
    wire::WideString text_;
};

} // namespace forms
