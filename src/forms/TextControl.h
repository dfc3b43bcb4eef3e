#pragma once

#include "forms/Control.h"

#include <cstddef>
#include <limits>

namespace forms {

// Limits of a box that takes text.
struct TextOptions {
    static constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();

    std::size_t limit = unlimited; // in UTF-16 units; of what a person types, not of setText
    bool digitsOnly = false;       // other characters are not taken from the keyboard
    bool readOnly = false;
    std::size_t codePageBytes = unlimited; // of a text that goes out in the user's code page; tested on OK
};

// A box that takes text; the base of the one-line, the many-line and the password box.
class TextControl : public Control {
public:
    const wire::WideString& text() const { return text_; }
    // Does not fire onChange.
    void setText(wire::WideString text);
    const TextOptions& options() const { return options_; }
    void setLimit(std::size_t limit);
    void setReadOnly(bool readOnly);

    std::function<void()> onChange;
    // The person has changed the text. False when it breaks the box's rules (too long, not digits, read only,
    // disabled); the text then stays. A text that breaks the rules, as setText may leave it, can still be made shorter.
    bool userTyped(wire::WideString text);

protected:
    TextControl(Container& container, std::u16string_view label, TextOptions options);

private:
    wire::WideString text_;
    TextOptions options_;
};

} // namespace forms
