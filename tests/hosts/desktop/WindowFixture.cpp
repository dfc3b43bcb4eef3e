#include "tests/hosts/desktop/WindowFixture.h"

#include "client/CQVXAdminClassProperties.h"
#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/tree/TreePath.h"
#include "snapin/LoginThread.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>

#include <utility>

namespace desktoptest {
namespace {

QString withoutAccessKey(QString text) {
    return text.remove(QLatin1Char('&')).trimmed();
}

} // namespace

void WindowFixture::SetUp() {
    ASSERT_NE(0, server.port());
    snapin::loginDone = 0;
    settings.values = {{"ServerName", u"127.0.0.1"},
                       {"ServerPort", desktop::toWideString(QString::number(server.port()))},
                       {"UserName", u"admin"}};
    viewSettings = std::make_unique<desktop::ViewSettings>(folder.filePath(QStringLiteral("view.ini")));
    watch_.setInterval(5);
    watch_.callOnTimeout([this] {
        if (commands_.running > 0) {
            return;
        }
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        const bool isNew = dialog != seen_;
        seen_ = dialog;
        if (dialog != nullptr && isNew && !acts_.empty()) {
            // Not from within the timer, which would not fire while a box is open over the dialog.
            QMetaObject::invokeMethod(
                dialog, [this, dialog] { actOn(*dialog); }, Qt::QueuedConnection);
        }
    });
    watch_.start();
}

// A dialog is also in front for a moment between two others that open over it.
void WindowFixture::actOn(QDialog& dialog) {
    if (QApplication::activeModalWidget() != &dialog) {
        seen_ = nullptr;
    } else if (!acts_.empty()) {
        const auto act = std::move(acts_.front());
        acts_.pop_front();
        act(dialog);
    }
}

void WindowFixture::TearDown() {
    EXPECT_TRUE(acts_.empty()) << "a dialog that the test has announced did not come";
    watch_.stop();
    window_.reset();
    session_.reset();
    client::theProperties.reset();
}

void WindowFixture::makeWindow() {
    session_ = std::make_unique<desktop::Session>(settings);
    commands_.running = 0;
    session_->observers().add(commands_);
    window_ = std::make_unique<desktop::MainWindow>(*session_, *viewSettings, icons);
    window_->resize(1000, 600);
    window_->show();
}

void WindowFixture::open(const QString& path) {
    makeWindow();
    session_->ui().setPassword(ServerProcess::password);
    bool started = false;
    window_->onStarted = [&](const std::optional<QString>& error) {
        EXPECT_FALSE(error.has_value()) << error.value_or(QString()).toStdString();
        started = true;
    };
    window_->start(path);
    ASSERT_TRUE(waitFor([&] { return started; }));
    settle();
}

void WindowFixture::openWithDialog() {
    makeWindow();
    window_->start({});
}

void WindowFixture::whenAsked(std::function<void(QDialog&)> act) {
    acts_.push_back(std::move(act));
}

void WindowFixture::press(QWidget& dialog, const QString& button) {
    for (auto* const candidate : dialog.findChildren<QAbstractButton*>()) {
        if (withoutAccessKey(candidate->text()) == button && candidate->isVisible()) {
            QTest::mouseClick(candidate, Qt::LeftButton);
            return;
        }
    }
    ADD_FAILURE() << "there is no button " << button.toStdString();
}

void WindowFixture::type(QWidget& dialog, int field, const QString& text) {
    const auto fields = dialog.findChildren<QLineEdit*>();
    ASSERT_LT(field, fields.size());
    fields[field]->selectAll();
    QTest::keyClicks(fields[field], text);
}

void WindowFixture::settle() {
    for (int round = 0; round < 4; ++round) {
        bool done = false;
        session_->operations().later([&] { done = true; });
        ASSERT_TRUE(waitFor([&] { return done; }));
        QCoreApplication::processEvents();
    }
}

void WindowFixture::choose(const QString& entry) {
    const auto menu = window_->menus().make(shell().selection());
    for (QAction* const action : menu->actions()) {
        if (withoutAccessKey(action->text()) == entry) {
            action->trigger();
            settle();
            return;
        }
    }
    ADD_FAILURE() << "there is no entry " << entry.toStdString();
}

console::ScopeId WindowFixture::item(const QString& path) const {
    const auto& tree = shell().tree();
    console::ScopeId id = tree.children(tree.root()).front();
    const auto names = desktop::namesInPath(path).value();
    for (const QString& name : names) {
        const auto children = tree.children(id);
        const auto found = std::ranges::find_if(
            children, [&](console::ScopeId child) { return desktop::toQString(tree.text(child)) == name; });
        if (found == children.end()) {
            return 0;
        }
        id = *found;
    }
    return id;
}

QStringList WindowFixture::childrenOf(const QString& path) const {
    QStringList names;
    for (const auto id : shell().tree().children(item(path))) {
        names += desktop::toQString(shell().tree().text(id));
    }
    return names;
}

QStringList WindowFixture::rows() const {
    QStringList names;
    for (std::size_t row = 0; row < shell().pane().rowCount(); ++row) {
        names += desktop::toQString(shell().pane().cell(row, 0));
    }
    return names;
}

QModelIndex WindowFixture::rowNamed(const QString& name) const {
    return window_->panes().listModel().index(static_cast<int>(rows().indexOf(name)), 0);
}

void WindowFixture::selectRow(const QString& name) {
    const auto index = rowNamed(name);
    ASSERT_TRUE(index.isValid()) << name.toStdString();
    panes().list().setCurrentIndex(index);
    settle();
}

void WindowFixture::show(const QString& path) {
    EXPECT_FALSE(desktop::openPath(session_->operations(), path).has_value()) << path.toStdString();
    settle();
}

} // namespace desktoptest
