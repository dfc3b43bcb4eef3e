#include "hosts/desktop/window/MainWindow.h"

#include "hosts/desktop/list/CopyRows.h"
#include "hosts/desktop/list/ExportList.h"
#include "hosts/desktop/look/GlyphIcon.h"
#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/tree/TreePath.h"
#include "hosts/desktop/window/AboutBox.h"
#include "hosts/desktop/window/Resources.h"
#include "hosts/desktop/window/ShortcutSheet.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>
#include <iterator>
#include <utility>

namespace desktop {
namespace {

constexpr int messageTime = 8'000; // milliseconds

} // namespace

MainWindow::MainWindow(Session& session, ViewSettings& settings, const IconStrips& icons)
    : session_(session),
      settings_(settings),
      actions_(*this),
      menus_(session.operations(), actions_, *this),
      panes_(new Panes(session.operations(), session.observers(), icons, settings, this)),
      moves_(session.operations(), panes_->undoBar()),
      activity_(new ActivityDock(session.activity(), this)),
      details_(new DetailsDock(this)),
      status_(*statusBar(), session.operations(), session.age()),
      wait_(session.operations(), session.observers(), *this),
      autoRefresh_(session.operations(), settings, *this),
      look_(settings),
      logins_(session.platform(), session.ui(), settings) {
    setObjectName(QStringLiteral("mainWindow"));
    setWindowTitle(QStringLiteral("Vantrel Manager"));
    setWindowIcon(IconStrips::application());
    setCentralWidget(panes_);
    addDockWidget(Qt::BottomDockWidgetArea, activity_);
    activity_->hide();
    addDockWidget(Qt::RightDockWidgetArea, details_);
    details_->hide();
    connect(details_, &QDockWidget::visibilityChanged, this, [this] { showStateSoon(); });
    makeMenus();
    makeToolBar();
    connectActions();
    session_.ui().setMainWindow(this);
    logins_.onOtherServer = [this] { showOtherServer(); };
    session_.watch().onRenameAgain = [this](const Renaming& renaming) { renameAgain(renaming); };
    session_.setMeasure([this](wire::WideStringView title) {
        const QFontMetrics metrics(panes_->list().font());
        return metrics.horizontalAdvance(oneLine(title)) + 3 * metrics.averageCharWidth() + metrics.height();
    });
    session_.age().onChange = [this] { showStateSoon(); };
    autoRefresh_.hasFailed = [this] { return !session_.age().failure().isEmpty(); };
    panes_->readingFailure = [this] { return session_.age().failure(); };
    session_.observers().add(*this);
    status_.update();
}

MainWindow::~MainWindow() {
    session_.observers().remove(*this);
    session_.age().onChange = nullptr;
    session_.watch().setLogins(nullptr);
    session_.watch().onRenameAgain = nullptr;
    session_.ui().setMainWindow(nullptr);
    session_.setMeasure(nullptr);
    delete panes_; // its views must be destroyed before their models
    delete activity_;
    delete details_; // it reports when it is hidden
}

void MainWindow::restorePlace() {
    std::vector<QRect> screens;
    for (const QScreen* const screen : QGuiApplication::screens()) {
        screens.push_back(screen->availableGeometry());
    }
    const QRect remembered = settings_.geometry(screens);
    if (remembered.isValid()) {
        setGeometry(remembered);
    } else {
        const QRect screen = screens.empty() ? QRect(QPoint(), naturalSize) : screens.front();
        resize(naturalSize.boundedTo(screen.size() * 9 / 10));
        move(screen.center() - QPoint(width() / 2, height() / 2));
    }
    panes_->restoreState(settings_.state(QStringLiteral("panes")));
    restoreState(settings_.state(QStringLiteral("docks")));
}

void MainWindow::start(const QString& path) {
    session_.operations().later([this, path] {
        std::optional<QString> error;
        const bool done = session_.operations().perform([this](shell::Shell& console) {
            console.setSortOrders(settings_.sortOrders());
            return console.start();
        });
        if (!closing_) {
            logins_.remember();
            session_.watch().setLogins(&logins_); // a first login that is given up closes the window
            error = done ? openPath(session_.operations(), path.isEmpty() ? QStringLiteral("Printers") : path)
                         : std::optional(QStringLiteral("The console can't start"));
            panes_->tree().setFocus(Qt::OtherFocusReason);
        }
        if (error) {
            statusBar()->showMessage(*error, messageTime);
        }
        if (onStarted) {
            onStarted(error);
        }
    });
}

void MainWindow::makeMenus() {
    makeFileMenu();

    QMenu* const action = menuBar()->addMenu(QStringLiteral("&Action"));
    connect(action, &QMenu::aboutToShow, this, [this, action] {
        action->clear();
        menus_.fill(*action, session_.shell().selection());
    });

    QMenu* const edit = menuBar()->addMenu(QStringLiteral("&Edit"));
    edit->addAction(actions_.undo);
    edit->addSeparator();
    edit->addActions(
        {actions_.cut, actions_.copyRows, actions_.paste, actions_.rename, actions_.remove, actions_.selectAll});
    edit->addSeparator();
    edit->addActions({actions_.filter, actions_.find});

    QMenu* const view = menuBar()->addMenu(QStringLiteral("&View"));
    view->addAction(actions_.refresh);
    autoRefresh_.addTo(*view);
    panes_->list().columns().addMenu(*view);
    view->addAction(actions_.resetColumns);
    view->addSeparator();
    look_.addTo(*view);
    look_.onMessage = [this](const QString& message) { statusBar()->showMessage(message, messageTime); };
    view->addSeparator();
    QAction* const log = activity_->toggleViewAction();
    log->setText(QStringLiteral("Activity &Log"));
    log->setStatusTip(QStringLiteral("To see the commands that are sent to the server"));
    log->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_L));
    log->setIcon(GlyphIcon::make(GlyphIcon::Glyph::log));
    view->addAction(log);
    QAction* const details = details_->toggleViewAction();
    details->setText(QStringLiteral("&Details"));
    details->setStatusTip(QStringLiteral("To see everything about the selected row"));
    details->setShortcut(QKeySequence(Qt::Key_F3));
    view->addAction(details);
    view->addAction(actions_.nextPane);

    QMenu* const go = menuBar()->addMenu(QStringLiteral("&Go"));
    go->addActions({actions_.back, actions_.forward, actions_.up});

    menuBar()->addMenu(QStringLiteral("&Help"))->addActions({actions_.shortcuts, actions_.about});
}

void MainWindow::makeFileMenu() {
    QMenu* const file = menuBar()->addMenu(QStringLiteral("&File"));
    file->addActions({actions_.exportList, actions_.exportRows});
    file->addSeparator();
    file->addActions({actions_.logIn, actions_.connect});
    file->addSeparator();
    file->addAction(actions_.quit);
    connect(file, &QMenu::aboutToShow, this, [this, file] { showRecent(*file); });
}

// Below the entry that connects to another server: one click, and only the password is missing.
void MainWindow::showRecent(QMenu& menu) {
    for (QAction* const action : std::exchange(recent_, {})) {
        delete action;
    }
    const ServerLogin current = LoginKeeper::current();
    const auto actions = menu.actions();
    QAction* const end = actions.at(actions.indexOf(actions_.connect) + 1);
    for (const ServerLogin& login : logins_.recent()) {
        if (login == current) {
            continue;
        }
        const QString user = login.domain.isEmpty() ? login.user : login.domain + QLatin1Char('\\') + login.user;
        QString text = oneLine(toWideString(QStringLiteral("%1 on %2:%3").arg(user, login.host).arg(login.port)));
        auto* const action = new QAction(text.replace(QLatin1Char('&'), QStringLiteral("&&")), &menu);
        action->setStatusTip(QStringLiteral("To administer this server in this window"));
        connect(action, &QAction::triggered, this, [this, login] { logIn(login); });
        menu.insertAction(end, action);
        recent_.push_back(action);
    }
}

void MainWindow::logIn(const ServerLogin& wanted) {
    session_.operations().later([this, wanted] {
        session_.watch().logIn(wanted);
        showStateSoon();
    });
}

// Everything that the tree has read belongs to the other server. What is there under the same name stays open.
void MainWindow::showOtherServer() {
    session_.operations().later([this] {
        session_.operations().perform([](shell::Shell& console) {
            const auto& tree = console.tree();
            std::vector<console::ScopeId> branches;
            for (const auto server : tree.children(tree.root())) {
                const auto below = tree.children(server);
                std::ranges::copy_if(below, std::back_inserter(branches),
                                     [&](console::ScopeId id) { return tree.isLoaded(id); });
            }
            return console.reread(branches);
        });
        showStateSoon();
    });
}

void MainWindow::renameAgain(const Renaming& renaming) {
    const bool isRow = renaming.target.row != 0;
    session_.operations().perform([&](shell::Shell& console) {
        return console.select(renaming.target.scope) && (!isRow || console.selectRow(renaming.target.row));
    });
    if (session_.shell().selection() == renaming.target) {
        rename();
        QWidget& view = isRow ? static_cast<QWidget&>(panes_->list()) : panes_->tree();
        // The last one: the box that has just been closed may still exist.
        if (const auto editors = view.findChildren<QLineEdit*>(); !editors.isEmpty()) {
            editors.back()->setText(toQString(renaming.name));
            editors.back()->selectAll();
        }
    }
}

void MainWindow::makeToolBar() {
    QToolBar* const bar = addToolBar(QStringLiteral("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->addActions({actions_.back, actions_.forward, actions_.up});
    bar->addSeparator();
    bar->addAction(actions_.refresh);
    bar->addAction(actions_.exportList);
    bar->addAction(activity_->toggleViewAction());
}

void MainWindow::run(const std::function<bool(shell::Shell&)>& work) {
    session_.operations().later([this, work] { session_.operations().perform(work); });
}

void MainWindow::connectActions() {
    const auto on = [this](QAction* action, auto handler) { connect(action, &QAction::triggered, this, handler); };
    on(actions_.back, [this] { run(&shell::Shell::back); });
    on(actions_.forward, [this] { run(&shell::Shell::forward); });
    on(actions_.up, [this] { goUp(); });
    on(actions_.refresh, [this] { run(&shell::Shell::refresh); });
    on(actions_.cut, [this] { run(&shell::Shell::cut); });
    on(actions_.paste, [this] { moves_.paste(); });
    on(actions_.undo, [this] { panes_->undoBar().undo(); });
    panes_->undoBar().onChange = [this] { actions_.undo->setEnabled(panes_->undoBar().isOffered()); };
    moves_.onMessage = [this](const QString& message) { statusBar()->showMessage(message, messageTime); };
    on(actions_.logIn, [this] { logIn(LoginKeeper::current()); });
    on(actions_.connect, [this] { logIn({}); });
    on(actions_.remove,
       [this] { session_.operations().later([this] { menus_.remove(session_.shell().selection()); }); });
    on(actions_.rename, [this] { rename(); });
    on(actions_.copyRows, [this] { copySelectedRows(); });
    on(actions_.copyCell, [this] { copyCell(); });
    on(actions_.selectAll, [this] { panes_->list().selectAll(); });
    on(actions_.exportList, [this] { session_.operations().later([this] { exportTable(session_.shell().table()); }); });
    on(actions_.exportRows,
       [this] { session_.operations().later([this] { exportTable(panes_->list().selectedTable()); }); });
    on(actions_.filter, [this] {
        panes_->filter().setFocus(Qt::ShortcutFocusReason);
        panes_->filter().selectAll();
    });
    on(actions_.find, [this] {
        panes_->search().setFocus(Qt::ShortcutFocusReason);
        panes_->search().selectAll();
    });
    on(actions_.nextPane, [this] { focusNextPane(); });
    on(actions_.resetColumns, [this] { panes_->list().columns().reset(); });
    on(actions_.shortcuts, [this] { showShortcuts(); });
    on(actions_.about, [this] { showAbout(); });
    on(actions_.quit, [this] { close(); });

    const auto showMenu = [this](const shell::Target& target, const QPoint& place) { menus_.show(target, place); };
    panes_->tree().onMenu = showMenu;
    panes_->list().onMenu = showMenu;
    panes_->list().onOpen = [this](const shell::Target& target) { menus_.open(target); };
    connect(panes_->list().selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { showStateSoon(); });
    menus_.selectedRows = [this] { return panes_->list().selectedRows().count(); };
    panes_->path().onChosen = [this](console::ScopeId item) {
        run([item](shell::Shell& shell) { return shell.select(item); });
    };
    panes_->filter().onFiltered = [this] { showStateSoon(); };
    status_.parts().onPressed = [this](const shell::ListPart& part) {
        const auto filter = toWideString(panes_->filter().text());
        panes_->filter().setText(toQString(shell::toggled(filter, part, session_.shell().pane().titles())));
    };
    panes_->search().onMessage = [this](const QString& message) {
        statusBar()->showMessage(message, message.isEmpty() ? 1 : messageTime);
    };
    panes_->notice().onRetry = [this] { run(&shell::Shell::refreshList); };
    panes_->notice().onLogin = [this] { logIn(LoginKeeper::current()); };
}

void MainWindow::goUp() {
    run([](shell::Shell& shell) {
        const auto above = shell.tree().parent(shell.selection().scope);
        return above != 0 && shell.select(above);
    });
}

void MainWindow::rename() {
    if (session_.shell().selection().row != 0) {
        panes_->list().renameCurrent();
    } else {
        panes_->tree().renameCurrent();
    }
}

void MainWindow::copySelectedRows() {
    const auto table = panes_->list().selectedTable();
    if (table.rowCount > 0) {
        copyRows(table);
        statusBar()->showMessage(StatusLine::countText(table.rowCount, table.rowCount) +
                                     QStringLiteral(" copied to the clipboard."),
                                 messageTime);
    }
}

void MainWindow::copyCell() {
    if (const auto cell = panes_->list().currentIndex(); cell.isValid()) {
        copyText(cell.data(Qt::EditRole).toString());
        statusBar()->showMessage(QStringLiteral("The cell is in the clipboard."), messageTime);
    }
}

void MainWindow::exportTable(const shell::Table& table) {
    const auto& shell = session_.shell();
    const QString said = exportList(table, oneLine(shell.tree().text(shell.selection().scope)), this);
    if (!said.isEmpty()) {
        statusBar()->showMessage(said, messageTime);
    }
}

void MainWindow::focusNextPane() {
    QWidget* next = &panes_->tree();
    if (focusWidget() == &panes_->tree()) {
        next = &panes_->list();
    } else if (panes_->list().hasFocus() && activity_->isVisible()) {
        next = &activity_->view();
    }
    next->setFocus(Qt::ShortcutFocusReason);
}

void MainWindow::showAbout() {
    Resources resources;
    const snapin::CPrintAbout about(resources);
    AboutBox(about, IconStrips::application(), this).exec();
}

void MainWindow::showShortcuts() {
    ShortcutSheet(*menuBar(), this).exec();
}

void MainWindow::showStateSoon() {
    if (!std::exchange(showing_, true)) {
        session_.operations().later([this] {
            showing_ = false;
            showState();
        });
    }
}

void MainWindow::showState() {
    const auto& shell = session_.shell();
    const QString name = oneLine(shell.tree().text(shell.selection().scope));
    const QString program = QStringLiteral("Vantrel Manager"); // and the name of the top item
    setWindowTitle(name.isEmpty() || name == program ? program : name + QStringLiteral(" – ") + program);
    panes_->showPath();
    const auto& selected = panes_->list().selectedRows();
    actions_.update(session_.operations(), selected.count());
    status_.update();
    if (details_->isVisible()) {
        details_->update(shell, selected.rows());
    }
    sayAge();
    if (shell.pane().unfilteredCount() == 0) {
        panes_->setCreators(menus_.creators({.scope = shell.selection().scope}));
    }
    panes_->list().setAccessibleDescription(shell.pane().rowCount() == 0 ? panes_->emptyText() : QString());
    panes_->list().viewport()->update();
}

void MainWindow::sayAge() {
    const QString failure = session_.age().failure();
    if (failure.isEmpty()) {
        panes_->notice().say({});
        return;
    }
    const auto time = session_.age().readAt();
    const QString rest =
        time ? QStringLiteral(" The rows are from %1.").arg(time->toString(QStringLiteral("hh:mm:ss"))) : QString();
    panes_->notice().offerLogin(session_.watch().isTurnedAway());
    panes_->notice().say(QStringLiteral("This list could not be read: %1.").arg(failure) + rest);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (session_.operations().busy()) {
        wait_.cancel();
        session_.operations().later([this] { close(); });
        event->ignore();
        return;
    }
    settings_.setGeometry(isMaximized() || isFullScreen() ? normalGeometry() : geometry());
    settings_.setState(QStringLiteral("panes"), panes_->saveState());
    settings_.setState(QStringLiteral("docks"), saveState());
    event->accept();
}

void MainWindow::selectionChanged() {
    if (session_.shell().selection().row != 0 && focusWidget() == &panes_->tree()) {
        panes_->list().setFocus(Qt::OtherFocusReason); // to the new row, to which the next key belongs
    }
    showStateSoon();
}

void MainWindow::verbsChanged() {
    showStateSoon();
}

void MainWindow::cutChanged() {
    const auto& node = session_.shell().cutNode();
    statusBar()->showMessage(
        node ? QStringLiteral("'%1' is cut: paste it where it belongs, or press Esc.").arg(oneLine(node->displayName()))
             : QString(),
        node ? messageTime : 1);
    showStateSoon();
}

void MainWindow::columnsChanged() {
    showStateSoon();
}

void MainWindow::rowsInserted(std::size_t /*first*/, std::size_t /*count*/) {
    showStateSoon();
}

void MainWindow::rowsRemoved(std::size_t /*first*/, std::size_t /*count*/) {
    showStateSoon();
}

void MainWindow::rowsReset() {
    showStateSoon();
}

void MainWindow::scopeItemChanged(console::ScopeId /*item*/) {
    showStateSoon();
}

void MainWindow::closeRequested() {
    closing_ = true;
    session_.operations().later([this] { close(); });
}

} // namespace desktop
