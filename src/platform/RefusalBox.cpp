#include "platform/RefusalBox.h"

namespace platform {

void RefusalBox::show(const wire::WideString& caption, const wire::WideString& text, std::uint32_t style) {
    ui_.messageBox(0, text, caption, style);
}

} // namespace platform
