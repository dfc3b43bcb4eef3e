#pragma once

#include "hosts/desktop/activity/Operations.h"

#include <cstddef>

class QAction;
class QKeySequence;
class QMenu;
class QString;
class QWidget;

namespace desktop {

// The actions of the window itself, each with its key and its text for the status bar.
class Actions {
public:
    // The window owns the actions.
    explicit Actions(QWidget& window);

    QAction* back;
    QAction* forward;
    QAction* up;
    QAction* refresh;
    QAction* undo;
    QAction* cut;
    QAction* paste;
    QAction* rename;
    QAction* remove;
    QAction* copyRows;
    QAction* copyCell; // for the menu of a row
    QAction* selectAll;
    QAction* exportList;
    QAction* exportRows;
    QAction* logIn;
    QAction* connect;
    QAction* filter;
    QAction* find;
    QAction* nextPane;
    QAction* resetColumns;
    QAction* shortcuts;
    QAction* about;
    QAction* quit;

    // Disables the actions that the selection does not offer; with several rows, everything that is for a single one.
    // Must not be called within an operation of the console.
    void update(Operations& operations, std::size_t selectedRows) const;
    // The verbs that the selection offers. Not the one that deletes: that is an entry of the selection's own menu.
    void addVerbs(QMenu& menu) const;
    // What can be done with the selected rows, whatever they are.
    void addForRows(QMenu& menu) const;

private:
    void disable() const;
    [[nodiscard]] QAction* make(const QString& text, const QString& statusTip, const QKeySequence& key) const;

    QWidget& window_;
};

} // namespace desktop
