#include "hosts/desktop/forms/TextWidget.h"

#include "forms/MultiLineEdit.h"
#include "hosts/desktop/forms/LinesEdit.h"
#include "hosts/desktop/forms/ShownText.h"
#include "hosts/desktop/look/ColorScheme.h"

#include <QTextBlock>

namespace desktop {
TextWidget::TextWidget(forms::MultiLineEdit& box) : ControlWidget(box), box_(box), edit_(new LinesEdit) {
    setUp(edit_);
    edit_->setTabChangesFocus(true);
    edit_->setMinimumWidth(comfortableWidth());
    edit_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
    connect(edit_, &QPlainTextEdit::textChanged, this, [this] {
        if (!mirroring()) {
            typed();
        }
    });
}

wire::WideString TextWidget::typedText() const {
    QString text = edit_->toPlainText();
    return exactText(text.replace(QLatin1Char('\n'), QStringLiteral("\r\n")));
}

void TextWidget::typed() {
    wire::WideString text = typedText();
    if (text == box_.text() || box_.userTyped(text)) {
        return;
    }
    if (text.size() > box_.options().limit) {
        cutToLimit(text.size() - box_.options().limit);
        text = typedText();
        if (text == box_.text() || box_.userTyped(text)) {
            return;
        }
    }
    mirror(forms::Aspect::text);
}

// Removes the end of what was typed or pasted, which is before the cursor.
void TextWidget::cutToLimit(std::size_t tooMany) {
    mirrored([&] {
        QTextCursor cursor = edit_->textCursor();
        cursor.joinPreviousEditBlock();
        for (std::size_t cut = 0; cut < tooMany && !cursor.atStart(); ++cut) {
            cut += cursor.positionInBlock() == 0 ? 1 : 0; // a line's end counts twice
            cursor.deletePreviousChar();
        }
        cursor.endEditBlock();
    });
}

void TextWidget::update(forms::Aspect aspect) {
    if (aspect == forms::Aspect::limits) {
        edit_->setReadOnly(box_.options().readOnly);
        edit_->setPalette(box_.options().readOnly ? readOnlyPalette() : QPalette());
    } else if (aspect == forms::Aspect::text && typedText() != box_.text()) {
        edit_->setPlainText(exactText(box_.text()));
    }
}

} // namespace desktop
