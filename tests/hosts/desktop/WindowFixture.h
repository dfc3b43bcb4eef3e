#pragma once

#include "hosts/desktop/window/MainWindow.h"
#include "tests/hosts/desktop/ModelFixture.h"
#include "tests/hosts/desktop/ServerProcess.h"
#include "tests/support/MemorySettingsStore.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QPointer>
#include <QTemporaryDir>

#include <memory>

namespace desktoptest {

// The program's window on a real server with the sample estate:
//
//     Printers    Berlin      Headquarters, Warehouse
//                 München     Showroom, Training centre, and the printers MUC-001 to MUC-006
//                 Łódź        the printers LCJ-001 to LCJ-004
class WindowFixture : public testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Opens a window that logs in without a dialog and shows the path.
    void open(const QString& path = QStringLiteral("Printers"));
    // Opens a window that asks for the login.
    void openWithDialog();

    // Acts on the next dialogs, each once it is in front and no command runs, in the order of the calls. A dialog that
    // comes to the front again counts as the next one.
    void whenAsked(std::function<void(QDialog&)> act);
    // Presses the button with that text, access key or not.
    static void press(QWidget& dialog, const QString& button);
    static void type(QWidget& dialog, int field, const QString& text);

    // Runs postponed work until the console is idle and no dialog is expected any more.
    void settle();
    // Chooses an entry of the selection's menu.
    void choose(const QString& entry);

    console::ScopeId item(const QString& path) const;
    QStringList childrenOf(const QString& path) const;
    QStringList rows() const;
    QModelIndex rowNamed(const QString& name) const;
    void selectRow(const QString& name);
    void show(const QString& path);

    desktop::MainWindow& window() { return *window_; }
    desktop::Session& session() { return *session_; }
    const shell::Shell& shell() const { return session_->shell(); }
    desktop::Panes& panes() { return window_->panes(); }

    ServerProcess server;
    support::MemorySettingsStore settings;
    const QTemporaryDir folder;
    std::unique_ptr<desktop::ViewSettings> viewSettings;
    desktop::IconStrips icons;

private:
    // Counts the commands that run. The dialog beneath is in front while one does, until the next dialog opens.
    struct Commands final : shell::ShellObserver {
        void commandStarted(const client::CommandReport& /*report*/) override { ++running; }
        void commandEnded(const client::CommandReport& /*report*/) override { --running; }
        int running = 0;
    };

    void makeWindow();
    void actOn(QDialog& dialog);

    Commands commands_;
    std::unique_ptr<desktop::Session> session_;
    std::unique_ptr<desktop::MainWindow> window_;
    std::deque<std::function<void(QDialog&)>> acts_;
    QPointer<QDialog> seen_; // the dialog that was in front at the last check; a new one may get the same address
    QTimer watch_;
};

} // namespace desktoptest
