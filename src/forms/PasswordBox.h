#pragma once

#include "forms/TextControl.h"

namespace forms {

// A box whose text is not shown.
class PasswordBox final : public TextControl {
public:
    PasswordBox(Container& container, std::u16string_view label, TextOptions options = {});
    void accept(ControlVisitor& visitor) override;
};

} // namespace forms
