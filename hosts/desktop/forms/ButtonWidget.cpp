#include "hosts/desktop/forms/ButtonWidget.h"

#include "forms/Button.h"

namespace desktop {

ButtonWidget::ButtonWidget(forms::Button& button) : ControlWidget(button), button_(new QPushButton) {
    setUp(button_);
    connect(button_, &QPushButton::clicked, this, [&button] { button.userPressed(); });
}

} // namespace desktop
