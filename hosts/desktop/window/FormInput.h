#pragma once

#include "forms/Form.h"
#include "platform/DateTime.h"

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace desktop {

// What the user has entered in a form, to be entered again in another form of the same class. Never a password, nor the
// rows of a list, which have been made with dialogs of their own.
class FormInput {
public:
    explicit FormInput(forms::Form& form);

    // Whether the form is of the same class and about the same.
    [[nodiscard]] bool fits(const forms::Form& form) const;
    // Enters it as the user would, in a form that is open.
    void enterInto(forms::Form& form) const;

private:
    using Value = std::variant<std::monostate, bool, wire::WideString, std::size_t, std::optional<platform::DateTime>>;

    std::string className_;
    wire::WideString title_;
    std::vector<Value> values_; // of each control, in Tab order
};

} // namespace desktop
