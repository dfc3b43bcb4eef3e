#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QLineEdit>

namespace forms {
class TextControl;
} // namespace forms

namespace desktop {

// A box for one line of text, or for a password. A problem with the text is marked by a sign with a tool tip.
class LineWidget final : public ControlWidget {
public:
    LineWidget(forms::TextControl& box, QLineEdit::EchoMode echo);

protected:
    void update(forms::Aspect aspect) override;

private:
    void typed(const QString& text);
    void showText();
    void showLimits();
    void showProblem();
    void setMaxLength(int length);

    forms::TextControl& box_;
    QLineEdit* line_;
    QAction* mark_ = nullptr; // while the text has a problem
};

} // namespace desktop
