#include "hosts/desktop/forms/FormDialog.h"

#include "forms/Form.h"
#include "hosts/desktop/forms/FormScroll.h"
#include "hosts/desktop/forms/FormWidgets.h"
#include "hosts/desktop/forms/MessageBox.h"
#include "hosts/desktop/forms/ShownText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace desktop {
namespace {

constexpr int narrowestDialog = 360;

// From the inside out: sizes measured before the widgets had their style are discarded.
void layOutAnew(QWidget& widget) {
    widget.ensurePolished();
    for (QObject* const child : widget.children()) {
        if (auto* const inner = qobject_cast<QWidget*>(child)) {
            layOutAnew(*inner);
        }
    }
    if (widget.layout() != nullptr) {
        widget.layout()->invalidate();
        widget.layout()->activate();
    }
}

} // namespace

FormDialog::FormDialog(forms::Form& form, QWidget* owner)
    : QDialog(owner != nullptr ? owner : frontWindow()), form_(form), scroll_(new FormScroll(this)) {
    form_.setObserver(this);
    form_.open(); // before anything is drawn, so that its content is drawn once
    setSizeGripEnabled(true);
    setMinimumWidth(narrowestDialog);
    widgets_ = std::make_unique<FormWidgets>(form_, *scroll_->widget());
    auto* const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroll_);
    titleChanged(form_);
}

FormDialog::~FormDialog() {
    form_.setObserver(nullptr);
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
        form_.userPressedDefault();
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

void FormDialog::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        layOutAnew(*scroll_->widget());
        scroll_->updateGeometry();
        resize(sizeHint()); // by default a dialog takes at most two thirds of the screen
    }
    QDialog::showEvent(event);
    if (ControlWidget* const first = widgets_->first()) {
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
    layOutAnew(*scroll_->widget());
    scroll_->updateGeometry();
    resize(size().expandedTo(sizeHint()));
}

void FormDialog::titleChanged(forms::Form& form) {
    // Qt would take "[*]" for its placeholder of the "modified" mark.
    setWindowTitle(shownLine(form.title()).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
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
