#include "hosts/desktop/forms/ButtonWidget.h"

#include "console/Button.h"

namespace desktop {

ButtonWidget::ButtonWidget(console::Button& button) : ControlWidget(button), button_(new QPushButton) {
    setUp(button_);
    connect(button_, &QPushButton::clicked, this, [&button] { button.userPressed(); });
}

} // namespace desktop
