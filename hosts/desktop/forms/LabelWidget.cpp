#include "hosts/desktop/forms/LabelWidget.h"

#include "console/Label.h"
#include "hosts/desktop/forms/ShownText.h"

namespace desktop {

LabelWidget::LabelWidget(console::Label& label) : ControlWidget(label), label_(label), text_(new QLabel) {
    setUp(text_);
    addCaption();
    text_->setTextFormat(Qt::PlainText);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text_->setFocusPolicy(Qt::NoFocus);
    text_->setWordWrap(label.beside() == nullptr); // a remark behind a box stays in its line
}

void LabelWidget::update(console::Aspect aspect) {
    if (aspect == console::Aspect::text) {
        const QString shown = shownText(label_.text());
        const QString name = shownLine(spokenName());
        text_->setText(shown);
        text_->setAccessibleName(name.isEmpty() ? shown : name + QStringLiteral(": ") + shown);
    }
}

} // namespace desktop
