#include "hosts/desktop/window/Question.h"

#include "hosts/desktop/look/SvgIcon.h"

#include <QMessageBox>
#include <QPushButton>

namespace desktop {

bool warn(QWidget* owner, const QString& title, const QString& text, const QString& offer) {
    constexpr int side = 40;
    QMessageBox box(owner);
    box.setWindowModality(Qt::ApplicationModal);
    box.setWindowTitle(title);
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    const QIcon icon = SvgIcon::make(QStringLiteral(":/icons/boxes/warning.svg"));
    box.setIconPixmap(icon.pixmap(QSize(side, side), box.devicePixelRatioF()));
    box.setAccessibleName(title);
    box.setAccessibleDescription(text);
    QPushButton* const accepted = offer.isEmpty() ? nullptr : box.addButton(offer, QMessageBox::AcceptRole);
    box.setEscapeButton(box.addButton(QMessageBox::Close));
    box.setDefaultButton(accepted);
    box.exec();
    return accepted != nullptr && box.clickedButton() == accepted;
}

} // namespace desktop
