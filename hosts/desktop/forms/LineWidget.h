#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QLineEdit>

namespace forms {
class TextControl;
} // namespace forms

namespace desktop {

// A box for one line of text, or for a password.
class LineWidget final : public ControlWidget {
public:
    LineWidget(forms::TextControl& box, QLineEdit::EchoMode echo);

protected:
    void update(forms::Aspect aspect) override;

private:
    void typed(const QString& text);
    void showText();
    void showLimits();
    void setMaxLength(int length);

    forms::TextControl& box_;
    QLineEdit* line_;
};

} // namespace desktop
