#include "hosts/desktop/pictures/MenuPicture.h"

#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/pictures/Framed.h"
#include "hosts/desktop/window/MainWindow.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QStatusTipEvent>
#include <QTemporaryDir>

namespace desktop {
namespace {

QImage pictureWithMenu(Session& session, MainWindow& window) {
    const auto menu = window.menus().make(session.shell().selection());
    menu->ensurePolished();
    menu->resize(menu->sizeHint());
    QAction* const first = menu->actions().isEmpty() ? nullptr : menu->actions().front();
    if (first != nullptr) {
        menu->setActiveAction(first);
        QStatusTipEvent tip(first->statusTip());
        QApplication::sendEvent(&window, &tip);
    }
    settle();
    QImage image = window.grab().toImage();
    const auto& tree = window.panes().tree();
    const QRect row = tree.visualRect(tree.currentIndex());
    QPainter painter(&image);
    painter.drawPixmap(tree.viewport()->mapTo(&window, QPoint(row.left() + row.width() / 3, row.bottom())),
                       menu->grab());
    return image;
}

} // namespace

std::optional<QImage> menuPicture(platform::SettingsStore& settings, const QString& password, const QString& path) {
    const QTemporaryDir folder;
    ViewSettings viewSettings(folder.filePath(QStringLiteral("desktop.ini")));
    const IconStrips icons;
    Session session(settings);
    session.ui().setPassword(toWideString(password));
    session.ui().setUnattended();
    MainWindow window(session, viewSettings, icons);
    window.restorePlace();
    window.resize(MainWindow::naturalSize);
    std::optional<QImage> image;
    window.onStarted = [&](const std::optional<QString>& error) {
        if (!error) {
            settle();
            image = pictureWithMenu(session, window);
        }
        QCoreApplication::quit();
    };
    window.show();
    window.start(path);
    QApplication::exec();
    return image;
}

} // namespace desktop
