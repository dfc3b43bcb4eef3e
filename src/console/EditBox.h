#pragma once

#include "console/TextControl.h"

namespace console {

// A box for one line of text.
class EditBox final : public TextControl {
public:
    EditBox(Container& container, std::u16string_view label, TextOptions options = {});
    void accept(ControlVisitor& visitor) override;
};

} // namespace console
