#pragma once

#include "forms/Form.h"
#include "forms/TextControl.h"

#include <functional>
#include <memory>

namespace desktop {

// A dialog for a picture, filled in as a user would.
struct Sample {
    const char* name;
    std::function<std::unique_ptr<forms::Form>(platform::Platform&)> make;
    std::function<void(forms::Form&)> fill;
};

template <class Dialog, class... Arguments>
Sample sample(const char* name, std::function<void(Dialog&)> fill, Arguments... arguments) {
    return {name, [=](platform::Platform& platform) { return std::make_unique<Dialog>(platform, arguments...); },
            [fill](forms::Form& form) { fill(dynamic_cast<Dialog&>(form)); }};
}

// Types the text into the box.
inline void enter(forms::TextControl& box, const wire::WideString& text) {
    box.setText(text);
    box.userTyped(text);
}

} // namespace desktop
