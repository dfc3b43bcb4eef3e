#pragma once

#include "hosts/desktop/activity/ActivityDock.h"
#include "hosts/desktop/activity/WaitIndicator.h"
#include "hosts/desktop/window/AutoRefresh.h"
#include "hosts/desktop/window/ContextMenus.h"
#include "hosts/desktop/window/DetailsDock.h"
#include "hosts/desktop/window/LookChoices.h"
#include "hosts/desktop/window/Moves.h"
#include "hosts/desktop/window/Panes.h"
#include "hosts/desktop/window/Session.h"
#include "hosts/desktop/window/StatusLine.h"

#include <QMainWindow>

namespace desktop {

// The console's window.
class MainWindow final : public QMainWindow, private shell::ShellObserver {
public:
    static constexpr QSize naturalSize{1080, 680};

    // All outlive it.
    MainWindow(Session& session, ViewSettings& settings, const IconStrips& icons);
    ~MainWindow() override;

    // Logs in and shows the tree, opened along the path. Returns at once; calls onStarted when it is done, with an
    // error text or none. If the login is given up, the window closes instead.
    void start(const QString& path);
    std::function<void(const std::optional<QString>&)> onStarted;

    Panes& panes() { return *panes_; }
    ActivityDock& activity() { return *activity_; }
    DetailsDock& details() { return *details_; }
    AutoRefresh& autoRefresh() { return autoRefresh_; }
    [[nodiscard]] const Actions& actions() const { return actions_; }
    [[nodiscard]] const ContextMenus& menus() const { return menus_; }
    StatusLine& status() { return status_; }
    [[nodiscard]] const WaitIndicator& waitIndicator() const { return wait_; }
    void showAbout();
    void showShortcuts();

    // Restores the remembered size and position, or centers the window at its natural size.
    void restorePlace();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void makeMenus();
    void makeToolBar();
    void connectActions();
    void run(const std::function<bool(shell::Shell&)>& work);
    void showState();
    void makeFileMenu();
    void showRecent(QMenu& menu);
    void logIn(const ServerLogin& wanted);
    void showOtherServer();
    void renameAgain(const Renaming& renaming);
    void sayAge();
    void rename();
    void copySelectedRows();
    void copyCell();
    void exportTable(const shell::Table& table);
    void focusNextPane();
    void goUp();

    void selectionChanged() override;
    void verbsChanged() override;
    void cutChanged() override;
    void columnsChanged() override;
    void rowsInserted(std::size_t first, std::size_t count) override;
    void rowsRemoved(std::size_t first, std::size_t count) override;
    void rowsReset() override;
    void scopeItemChanged(console::ScopeId item) override;
    void closeRequested() override;
    void showStateSoon();

    Session& session_;
    ViewSettings& settings_;
    Actions actions_;
    ContextMenus menus_;
    Panes* panes_;
    Moves moves_;
    ActivityDock* activity_;
    DetailsDock* details_;
    StatusLine status_;
    WaitIndicator wait_;
    AutoRefresh autoRefresh_;
    LookChoices look_;
    LoginKeeper logins_;
    std::vector<QAction*> recent_; // the entries of recent logins
    bool showing_ = false;         // a call of showState is pending
    bool closing_ = false;
};

} // namespace desktop
