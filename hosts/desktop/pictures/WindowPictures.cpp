#include "hosts/desktop/pictures/WindowPictures.h"

#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/pictures/Framed.h"
#include "hosts/desktop/tree/TreePath.h"
#include "hosts/desktop/window/MainWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTemporaryDir>

#include <algorithm>

namespace desktop {
namespace {

const QString refusedName = QStringLiteral("Berlin");

// The window and what is done in it for a picture.
class Work {
public:
    Work(Session& session, MainWindow& window) : session_(session), window_(window) {}

    std::vector<NamedPicture> pictures() {
        return {{QStringLiteral("menu"), withMenu()},
                {QStringLiteral("filter"), withFilter()},
                {QStringLiteral("moved"), afterMove()},
                {QStringLiteral("refused"), withRefusal()}};
    }

private:
    [[nodiscard]] QImage withMenu() const {
        const auto menu = window_.menus().make(session_.shell().selection());
        menu->ensurePolished();
        menu->resize(menu->sizeHint());
        QAction* const first = menu->actions().isEmpty() ? nullptr : menu->actions().front();
        if (first != nullptr) {
            menu->setActiveAction(first);
            QStatusTipEvent tip(first->statusTip());
            QApplication::sendEvent(&window_, &tip);
        }
        settle();
        QImage image = window_.grab().toImage();
        const auto& tree = window_.panes().tree();
        const QRect row = tree.visualRect(tree.currentIndex());
        QPainter painter(&image);
        painter.drawPixmap(tree.viewport()->mapTo(&window_, QPoint(row.left() + row.width() / 3, row.bottom())),
                           menu->grab());
        return image;
    }

    QImage withFilter() {
        show(QStringLiteral("Printers/München"));
        window_.panes().filter().setText(QStringLiteral("model:halvek -place:mail"));
        finish();
        QImage image = window_.grab().toImage();
        window_.panes().filter().clear();
        finish();
        return image;
    }

    QImage afterMove() {
        const auto& list = window_.panes().listModel();
        select(list.rowCount() - 1);
        window_.actions().cut->trigger();
        finish();
        show(QStringLiteral("Printers/Łódź"));
        window_.actions().paste->trigger();
        finish();
        QImage image = window_.grab().toImage();
        window_.actions().undo->trigger();
        finish();
        return image;
    }

    // Makes a region whose name is taken.
    QImage withRefusal() {
        show(QStringLiteral("Printers"));
        QImage image;
        const QDialog* typedIn = nullptr;
        QTimer eyes;
        eyes.callOnTimeout([&] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || dialog == typedIn) {
                return;
            }
            if (typedIn == nullptr) {
                typedIn = dialog;
                dialog->findChild<QLineEdit*>()->setText(refusedName);
                emit dialog->findChild<QLineEdit*>()->textEdited(refusedName);
                press(*dialog, QStringLiteral("OK"));
            } else {
                image = withBox(*dialog);
                dialog->reject();
            }
        });
        eyes.start(20);
        const auto menu = window_.menus().make(session_.shell().selection());
        menu->actions().front()->trigger();
        finish();
        return image;
    }

    [[nodiscard]] QImage withBox(QDialog& box) const {
        QImage image = window_.grab().toImage();
        const QImage drawn = framed(box);
        QPainter painter(&image);
        painter.drawImage((image.width() - drawn.width()) / 2, (image.height() - drawn.height()) / 2, drawn);
        return image;
    }

    static void press(const QDialog& dialog, const QString& text) {
        for (auto* const button : dialog.findChildren<QAbstractButton*>()) {
            if (button->text().remove(QLatin1Char('&')) == text) {
                QMetaObject::invokeMethod(button, &QAbstractButton::click, Qt::QueuedConnection);
            }
        }
    }

    void show(const QString& path) {
        window_.statusBar()->clearMessage();
        openPath(session_.operations(), path);
        finish();
    }
    void select(int row) {
        window_.panes().list().setCurrentIndex(window_.panes().listModel().index(row, 0));
        finish();
    }
    // Waits until nothing is postponed any more.
    void finish() {
        constexpr int rounds = 4;
        for (int round = 0; round < rounds; ++round) {
            bool done = false;
            session_.operations().later([&done] { done = true; });
            while (!done) {
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            }
            settle();
        }
    }

    Session& session_;
    MainWindow& window_;
};

} // namespace

std::vector<NamedPicture> windowPictures(platform::SettingsStore& settings, const QString& password,
                                         const QString& path) {
    const QTemporaryDir folder;
    ViewSettings viewSettings(folder.filePath(QStringLiteral("desktop.ini")));
    const IconStrips icons;
    Session session(settings);
    session.ui().setPassword(toWideString(password));
    MainWindow window(session, viewSettings, icons);
    window.restorePlace();
    window.resize(MainWindow::naturalSize);
    std::vector<NamedPicture> pictures;
    window.onStarted = [&](const std::optional<QString>& error) {
        QTimer::singleShot(0, &window, [&, failed = error.has_value()] {
            if (!failed) {
                settle();
                pictures = Work(session, window).pictures();
            }
            QCoreApplication::quit();
        });
    };
    window.show();
    window.start(path);
    QApplication::exec();
    return pictures;
}

} // namespace desktop
