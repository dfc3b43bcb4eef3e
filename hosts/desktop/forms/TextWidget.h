#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QPlainTextEdit>

namespace forms {
class MultiLineEdit;
} // namespace forms

namespace desktop {

// A box for several lines of text. To the form a line ends with the two characters with which the dialogs of the
// platform end it, so that a text made here looks the same there.
class TextWidget final : public ControlWidget {
public:
    explicit TextWidget(forms::MultiLineEdit& box);

protected:
    void update(forms::Aspect aspect) override;

private:
    void typed();
    wire::WideString typedText() const;
    void cutToLimit(std::size_t tooMany);

    forms::MultiLineEdit& box_;
    QPlainTextEdit* edit_;
};

} // namespace desktop
