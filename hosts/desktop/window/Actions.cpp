#include "hosts/desktop/window/Actions.h"

#include "hosts/desktop/look/GlyphIcon.h"
#include "shell/MenuChoice.h"

#include <QAction>
#include <QIcon>
#include <QKeySequence>
#include <QMenu>
#include <QWidget>

namespace desktop {

using Glyph = GlyphIcon::Glyph;

Actions::Actions(QWidget& window) : window_(window) {
    back = make(QStringLiteral("&Back"), QStringLiteral("To go back to what was shown before"),
                QKeySequence(Qt::ALT | Qt::Key_Left));
    back->setIcon(GlyphIcon::make(Glyph::back));
    forward = make(QStringLiteral("&Forward"), QStringLiteral("To go forward to what was shown next"),
                   QKeySequence(Qt::ALT | Qt::Key_Right));
    forward->setIcon(GlyphIcon::make(Glyph::forward));
    up = make(QStringLiteral("&Up"), QStringLiteral("To go to the item above this one"),
              QKeySequence(Qt::ALT | Qt::Key_Up));
    up->setIcon(GlyphIcon::make(Glyph::up));
    refresh = make(QStringLiteral("&Refresh"), QStringLiteral("To read this from the server again"),
                   QKeySequence(Qt::Key_F5));
    refresh->setIcon(GlyphIcon::make(Glyph::refresh));
    undo = make(QStringLiteral("&Undo Move"), QStringLiteral("To move it back to where it was"),
                QKeySequence(Qt::CTRL | Qt::Key_Z));
    cut =
        make(QStringLiteral("Cu&t"), QStringLiteral("To move this somewhere else"), QKeySequence(Qt::CTRL | Qt::Key_X));
    paste = make(QStringLiteral("&Paste"), QStringLiteral("To move what was cut to this place"),
                 QKeySequence(Qt::CTRL | Qt::Key_V));
    rename = make(QStringLiteral("Re&name"), QStringLiteral("To give this another name"), QKeySequence(Qt::Key_F2));
    remove = make(QStringLiteral("&Delete"), QStringLiteral("To delete this"), QKeySequence(Qt::Key_Delete));
    copyRows = make(QStringLiteral("&Copy"), QStringLiteral("To copy the selected rows as text and as a table"),
                    QKeySequence(Qt::CTRL | Qt::Key_C));
    copyCell = make(QStringLiteral("Copy Ce&ll"), QStringLiteral("To copy the text of this cell alone"), {});
    selectAll = make(QStringLiteral("Select &All"), QStringLiteral("To select all rows of the list"),
                     QKeySequence(Qt::CTRL | Qt::Key_A));
    exportList = make(QStringLiteral("&Export List..."), QStringLiteral("To save this list to a file, as it is shown"),
                      QKeySequence(Qt::CTRL | Qt::Key_E));
    exportList->setIcon(GlyphIcon::make(Glyph::exportList));
    exportRows = make(QStringLiteral("Export &Selected Rows..."),
                      QStringLiteral("To save the selected rows to a file, as they are shown"), {});
    logIn = make(QStringLiteral("&Log in again..."), QStringLiteral("To log in to this server once more"), {});
    connect = make(QStringLiteral("&Connect to another server..."),
                   QStringLiteral("To administer another server in this window"), {});
    filter = make(QStringLiteral("&Filter List"), QStringLiteral("To see only some rows of the list"),
                  QKeySequence(Qt::CTRL | Qt::Key_F));
    filter->setIcon(GlyphIcon::make(Glyph::filter));
    find = make(QStringLiteral("F&ind in Tree"), QStringLiteral("To go to an item of the tree by its name"),
                QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F));
    find->setIcon(GlyphIcon::make(Glyph::find));
    nextPane = make(QStringLiteral("&Next Pane"), QStringLiteral("To switch between tree, list and log"),
                    QKeySequence(Qt::Key_F6));
    resetColumns =
        make(QStringLiteral("Reset &Columns"), QStringLiteral("To show the columns as they were originally"), {});
    shortcuts = make(QStringLiteral("&Keyboard Shortcuts"), QStringLiteral("To see all keys of this program"),
                     QKeySequence(Qt::Key_F1));
    about = make(QStringLiteral("&About Vantrel Manager"), QStringLiteral("To see information about this program"), {});
    quit = make(QStringLiteral("&Quit"), QStringLiteral("To close the program"), QKeySequence(Qt::CTRL | Qt::Key_Q));
    disable();
}

// Before the login there is nothing to act on.
void Actions::disable() const {
    for (QAction* const action : {back, forward, up, refresh, undo, cut, paste, rename, remove, copyRows, copyCell,
                                  selectAll, exportList, exportRows}) {
        action->setEnabled(false);
    }
}

QAction* Actions::make(const QString& text, const QString& statusTip, const QKeySequence& key) const {
    auto* const action = new QAction(text, &window_);
    action->setStatusTip(statusTip);
    action->setShortcut(key);
    QString plain = action->iconText();
    if (!key.isEmpty()) {
        plain += QStringLiteral(" (") + key.toString(QKeySequence::NativeText) + QLatin1Char(')');
    }
    action->setToolTip(plain);
    window_.addAction(action);
    return action;
}

void Actions::update(Operations& operations, std::size_t selectedRows) const {
    const auto& shell = operations.shell();
    const auto& selection = shell.selection();
    back->setEnabled(shell.canGoBack());
    forward->setEnabled(shell.canGoForward());
    up->setEnabled(shell.tree().parent(selection.scope) != 0);
    refresh->setEnabled(selection.scope != 0);
    copyRows->setEnabled(selectedRows > 0);
    copyCell->setEnabled(selectedRows > 0);
    selectAll->setEnabled(shell.pane().rowCount() > 0);
    exportList->setEnabled(!shell.header().columns().empty());
    exportRows->setEnabled(selectedRows > 1);
    const bool isOne = selectedRows < 2;
    cut->setEnabled(isOne && shell.canCut());
    rename->setEnabled(isOne && shell.canRename());
    remove->setEnabled(isOne && operations.perform([&](shell::Shell& console) {
        return shell::removingEntry(console.menu(selection)) != nullptr;
    }));
    paste->setEnabled(isOne && operations.perform([](shell::Shell& console) { return console.canPaste(); }));
}

void Actions::addVerbs(QMenu& menu) const {
    for (QAction* const action : {cut, paste, rename}) {
        if (action->isEnabled()) {
            menu.addAction(action);
        }
    }
}

void Actions::addForRows(QMenu& menu) const {
    if (copyRows->isEnabled()) {
        menu.addActions({copyRows, copyCell});
    }
    if (exportRows->isEnabled()) {
        menu.addAction(exportRows);
    }
}

} // namespace desktop
