#pragma once

#include "platform/UserInterface.h"

class QWidget;

namespace desktop {

// Shows a message box with the icon and the buttons of the style; the first button is the default one unless the style
// names the second. It is modal for the whole program. The text is shown as plain text, even if it looks like markup.
// Escape means cancel, or no if there is no cancel, or ok if that is the only button. A null owner means the front-most
// dialog. The name of the object that a question is about stands beneath the text.
platform::Answer showMessageBox(QWidget* owner, const wire::WideString& text, const wire::WideString& caption,
                                std::uint32_t style, const wire::WideString& object = {});

// The window in front of which a box without an owner is shown: the front-most dialog, or the main window; null when
// there is none.
QWidget* frontWindow();

} // namespace desktop
