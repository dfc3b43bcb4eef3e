#pragma once

#include "hosts/desktop/forms/ControlWidget.h"

#include <QPlainTextEdit>

namespace forms {
class MultiLineEdit;
} // namespace forms

namespace desktop {

// A box for several lines of text. For the form, lines end with CR and LF as in the dialogs of the platform, so that a
// text written here looks the same there.
class TextWidget final : public ControlWidget {
public:
    explicit TextWidget(forms::MultiLineEdit& box);

protected:
    void update(forms::Aspect aspect) override;

private:
    void typed();
    [[nodiscard]] wire::WideString typedText() const;
    void cutToLimit(std::size_t tooMany);

    forms::MultiLineEdit& box_;
    QPlainTextEdit* edit_;
};

} // namespace desktop
