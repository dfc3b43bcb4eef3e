#pragma once

#include "forms/Container.h"
#include "forms/Control.h"

namespace forms {

// A frame with a caption around controls that belong together. Disabling or hiding it does the same to them.
class Group final : public Control, public Container {
public:
    Group(Container& container, std::u16string_view label);
    void accept(ControlVisitor& visitor) override;
    Form& form() override;
    [[nodiscard]] bool shown() const override;
    [[nodiscard]] bool usable() const override;
};

} // namespace forms
