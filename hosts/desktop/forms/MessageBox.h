#pragma once

#include "platform/UserInterface.h"

class QWidget;

namespace desktop {

// Asks or tells with the icon and the buttons of the style; the first button is the default one unless the style says
// that it is the second. Nothing else of the program can be used meanwhile. The text is shown as plain text, whatever
// it looks like. Escape answers cancel, or no where there is no cancel, or ok where it stands alone. A null owner means
// the front-most dialog.
platform::Answer showMessageBox(QWidget* owner, const wire::WideString& text, const wire::WideString& caption,
                                std::uint32_t style);

// What belongs to nobody else is shown in front of this: the front-most dialog, or the window; null when there is none.
QWidget* frontWindow();

} // namespace desktop
