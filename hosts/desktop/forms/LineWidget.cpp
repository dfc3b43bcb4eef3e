#include "hosts/desktop/forms/LineWidget.h"

#include "forms/TextControl.h"
#include "hosts/desktop/forms/ShownText.h"
#include "hosts/desktop/look/ColorScheme.h"
#include "hosts/desktop/look/SvgIcon.h"
#include "hosts/desktop/look/Text.h"

#include <QAction>

#include <algorithm>
#include <limits>

namespace desktop {
namespace {

QString digitsOf(const QString& text) {
    QString digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits),
                 [](QChar unit) { return unit >= QLatin1Char('0') && unit <= QLatin1Char('9'); });
    return digits;
}

} // namespace

LineWidget::LineWidget(forms::TextControl& box, QLineEdit::EchoMode echo)
    : ControlWidget(box), box_(box), line_(new QLineEdit) {
    setUp(line_);
    line_->setEchoMode(echo);
    line_->setMinimumWidth(comfortableWidth());
    if (box.options().digitsOnly) {
        line_->setInputMethodHints(Qt::ImhDigitsOnly);
    }
    connect(line_, &QLineEdit::textEdited, this, &LineWidget::typed);
}

void LineWidget::typed(const QString& text) {
    if (box_.userTyped(exactText(text))) {
        showLimits();
        return;
    }
    // Only the digits of a text pasted into a box for digits are taken.
    const int cursor = line_->cursorPosition();
    const QString digits = digitsOf(text);
    if (box_.options().digitsOnly && exactText(digits) != box_.text() && box_.userTyped(exactText(digits))) {
        mirror(forms::Aspect::text);
        line_->setCursorPosition(static_cast<int>(digitsOf(text.left(cursor)).size()));
        return;
    }
    const auto added = text.size() - static_cast<qsizetype>(box_.text().size());
    mirror(forms::Aspect::text);
    line_->setCursorPosition(cursor - static_cast<int>(std::max<qsizetype>(added, 0)));
}

void LineWidget::update(forms::Aspect aspect) {
    if (aspect == forms::Aspect::text) {
        showText();
    } else if (aspect == forms::Aspect::limits) {
        showLimits();
    } else if (aspect == forms::Aspect::problem) {
        showProblem();
    }
}

void LineWidget::showText() {
    const QString text = exactText(box_.text());
    if (line_->text() == text) {
        return;
    }
    setMaxLength(std::numeric_limits<int>::max()); // the limit does not apply to the form's own code
    line_->setText(text);
    showLimits();
    line_->setCursorPosition(0);
}

void LineWidget::showLimits() {
    constexpr auto unlimited = static_cast<std::size_t>(std::numeric_limits<int>::max());
    const auto length = std::max(box_.options().limit, box_.text().size());
    setMaxLength(static_cast<int>(std::min(length, unlimited)));
    line_->setReadOnly(box_.options().readOnly);
    line_->setPalette(box_.options().readOnly ? readOnlyPalette() : QPalette());
}

void LineWidget::showProblem() {
    const QString problem = shownLine(box_.problem());
    delete mark_;
    mark_ = nullptr;
    if (!problem.isEmpty()) {
        mark_ =
            line_->addAction(SvgIcon::make(QStringLiteral(":/icons/boxes/warning.svg")), QLineEdit::TrailingPosition);
        mark_->setText(problem);
        mark_->setToolTip(plainToolTip(problem));
    }
    line_->setToolTip(problem.isEmpty() ? QString() : plainToolTip(problem));
    line_->setAccessibleDescription(problem);
}

// QLineEdit itself would move the cursor to the end.
void LineWidget::setMaxLength(int length) {
    if (line_->maxLength() != length) {
        const int cursor = line_->cursorPosition();
        line_->setMaxLength(length);
        line_->setCursorPosition(cursor);
    }
}

} // namespace desktop
