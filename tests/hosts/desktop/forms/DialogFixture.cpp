#include "tests/hosts/desktop/forms/DialogFixture.h"

#include <QCoreApplication>
#include <QTest>

namespace desktop {

QRect placeOn(const FormDialog& dialog, const forms::Control& control) {
    const QWidget& widget = *dialog.widgetOf(control);
    return {widget.mapTo(&dialog, QPoint()), widget.size()};
}

FormDialog& DialogFixture::show() {
    dialog_ = std::make_unique<FormDialog>(form);
    dialog_->show();
    dialog_->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(dialog_.get()));
    settle();
    return *dialog_;
}

void DialogFixture::settle() {
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

} // namespace desktop
