#pragma once

#include "console/TextControl.h"

namespace console {

// A box for several lines of text.
class MultiLineEdit final : public TextControl {
public:
    MultiLineEdit(Container& container, std::u16string_view label, TextOptions options = {});
    void accept(ControlVisitor& visitor) override;
};

} // namespace console
