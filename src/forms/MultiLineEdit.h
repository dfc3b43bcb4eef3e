#pragma once

#include "forms/TextControl.h"

namespace forms {

// A box for several lines of text.
class MultiLineEdit final : public TextControl {
public:
    MultiLineEdit(Container& container, std::u16string_view label, TextOptions options = {});
    void accept(ControlVisitor& visitor) override;
};

} // namespace forms
