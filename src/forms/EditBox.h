#pragma once

#include "forms/TextControl.h"

namespace forms {

// A box for one line of text.
class EditBox final : public TextControl {
public:
    EditBox(Container& container, std::u16string_view label, TextOptions options = {});
    void accept(ControlVisitor& visitor) override;
};

} // namespace forms
