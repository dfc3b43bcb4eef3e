#include "hosts/desktop/forms/LabelWidget.h"

#include "forms/Label.h"
#include "hosts/desktop/forms/ShownText.h"

namespace desktop {

LabelWidget::LabelWidget(forms::Label& label) : ControlWidget(label), label_(label), text_(new QLabel) {
    setUp(text_);
    text_->setTextFormat(Qt::PlainText);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text_->setFocusPolicy(Qt::NoFocus);
    text_->setWordWrap(label.beside() == nullptr); // a remark behind a box stays on one line
}

void LabelWidget::update(forms::Aspect aspect) {
    if (aspect == forms::Aspect::text) {
        const QString shown = shownText(label_.text());
        const QString name = shownLine(spokenName());
        text_->setText(shown);
        text_->setAccessibleName(name.isEmpty() ? shown : name + QStringLiteral(": ") + shown);
    }
}

} // namespace desktop
