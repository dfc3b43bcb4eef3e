#include "hosts/desktop/forms/FormDialog.h"

#include "forms/Form.h"
#include "hosts/desktop/forms/FormScroll.h"
#include "hosts/desktop/forms/FormWidgets.h"
#include "hosts/desktop/forms/MessageBox.h"
#include "hosts/desktop/forms/SheetTabs.h"
#include "hosts/desktop/forms/ShownText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>
#include <utility>

namespace desktop {
namespace {

constexpr int narrowestDialog = 360;

// With which the whole title is in the frame, beside the frame's buttons. The font of titles is not known: it is often
// bold.
int widthFor(const QString& title, const QWidget& dialog) {
    QFont font = dialog.font();
    font.setBold(true);
    return QFontMetrics(font).horizontalAdvance(title) + 4 * dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight);
}

} // namespace

FormDialog::FormDialog(forms::Form& form, QWidget* owner)
    : QDialog(owner != nullptr ? owner : frontWindow()), form_(form), scroll_(new FormScroll(this)) {
    if (parentWidget() != nullptr) {
        setScreen(parentWidget()->screen());
    }
    form_.setObserver(this);
    form_.open(); // before anything is drawn, so that its content is drawn once
    setSizeGripEnabled(true);
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(scroll_, 1);
    arrange();
    titleChanged(form_);
    connect(qApp, &QApplication::focusChanged, this, [this] { widgets_->showDefaultButton(); });
}

FormDialog::~FormDialog() {
    disconnect(qApp, nullptr, this, nullptr);
    form_.setObserver(nullptr);
}

void FormDialog::arrange() {
    forms::Arrangement lowest{};
    int least = std::numeric_limits<int>::max();
    for (const forms::Arrangement arrangement : forms::arrangements) {
        const QSize size = draw(arrangement);
        const QSize room = scroll_->room();
        if (size.height() <= room.height() && size.width() <= room.width()) {
            return;
        }
        if (size.height() < least && size.width() <= room.width()) {
            least = size.height();
            lowest = arrangement;
        }
    }
    draw(lowest);
}

QSize FormDialog::draw(forms::Arrangement arrangement) {
    widgets_.reset();
    delete foot_;
    foot_ = new QWidget(this);
    layout()->addWidget(foot_);
    widgets_ = std::make_unique<FormWidgets>(form_, arrangement, scroll_->renew(), *foot_);
    scroll_->setHeightBelow(foot_->sizeHint().height());
    scroll_->layOutAnew();
    const QSize size = scroll_->widget()->minimumSizeHint();
    widgets_->hideInvisible();
    return size;
}

QWidget* FormDialog::widgetOf(const forms::Control& control) const {
    const ControlWidget* const widget = widgets_->find(control);
    return widget != nullptr ? widget->widget() : nullptr;
}

void FormDialog::reject() {
    if (form_.ended()) {
        QDialog::reject();
    } else {
        form_.userCancelled();
    }
}

void FormDialog::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return;
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (isEnter && isPlain) {
        form_.userPressedDefault(widgets_->focused());
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

void FormDialog::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        scroll_->layOutAnew();
        resize(sizeHint()); // by default a dialog takes at most two thirds of the screen
    }
    QDialog::showEvent(event);
    setAttribute(Qt::WA_KeyboardFocusChange); // the focus is drawn even if no key has been pressed yet
    if (ControlWidget* const first = widgets_->first()) {
        SheetTabs::reveal(*first->widget());
        first->tabStops().front()->setFocus(Qt::TabFocusReason);
    }
}

void FormDialog::controlChanged(forms::Control& control, forms::Aspect aspect) {
    if (widgets_ != nullptr) {
        widgets_->controlChanged(control, aspect);
        const bool mayGrow = aspect == forms::Aspect::visible || aspect == forms::Aspect::pages;
        if (mayGrow && isVisible() && !std::exchange(growsSoon_, true)) {
            QMetaObject::invokeMethod(this, &FormDialog::growToFit, Qt::QueuedConnection);
        }
    }
}

void FormDialog::growToFit() {
    growsSoon_ = false;
    scroll_->layOutAnew();
    resize(size().expandedTo(sizeHint()));
}

void FormDialog::titleChanged(forms::Form& form) {
    const QString title = shownLine(form.title());
    setMinimumWidth(
        std::clamp(widthFor(title, *this), narrowestDialog, std::max(narrowestDialog, scroll_->room().width())));
    // Qt would take "[*]" for its placeholder of the "modified" mark.
    setWindowTitle(QString(title).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

void FormDialog::formEnded(forms::Form& form) {
    done(form.result());
}

int runForm(forms::Form& form, QWidget* owner) {
    FormDialog dialog(form, owner);
    if (!form.ended()) {
        dialog.exec();
    }
    if (!form.ended()) {
        form.userCancelled();
    }
    return form.result();
}

} // namespace desktop
