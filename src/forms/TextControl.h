#pragma once

#include "forms/Control.h"

#include <cstddef>
#include <limits>

namespace forms {

// Limits of a box that takes text.
struct TextOptions {
    static constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();

    std::size_t limit = unlimited; // in UTF-16 units; for typed text, not for setText
    bool digitsOnly = false;       // other characters can't be typed
    bool readOnly = false;
    std::size_t codePageBytes = unlimited; // for a text that is sent in the user's code page; checked on OK
};

// A box that takes text; the base of the one-line, the many-line and the password box.
class TextControl : public Control {
public:
    [[nodiscard]] const wire::WideString& text() const { return text_; }
    // Does not fire onChange.
    void setText(wire::WideString text);
    [[nodiscard]] const TextOptions& options() const { return options_; }
    void setLimit(std::size_t limit);
    void setReadOnly(bool readOnly);
    // What is wrong with the text as it stands, for hosts to show at the box; empty if nothing is. It is only a hint:
    // the form can be confirmed all the same.
    [[nodiscard]] const wire::WideString& problem() const { return problem_; }
    void setProblem(wire::WideString problem);

    std::function<void()> onChange;
    // The user has changed the text. False when it breaks the box's rules (too long, not digits, read only, disabled);
    // the old text then stays. A text that already breaks the rules, as setText may leave one, can still be shortened.
    bool userTyped(wire::WideString text);

protected:
    TextControl(Container& container, std::u16string_view label, TextOptions options);

private:
    wire::WideString text_;
    wire::WideString problem_;
    TextOptions options_;
};

} // namespace forms
