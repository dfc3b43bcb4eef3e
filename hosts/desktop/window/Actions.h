#pragma once

#include "hosts/desktop/activity/Operations.h"

class QAction;
class QKeySequence;
class QMenu;
class QString;
class QWidget;

namespace desktop {

// What the person can do in the window itself, each with its key and the words that the status bar says about it.
class Actions {
public:
    // The window owns the actions.
    explicit Actions(QWidget& window);

    QAction* back;
    QAction* forward;
    QAction* up;
    QAction* refresh;
    QAction* cut;
    QAction* paste;
    QAction* rename;
    QAction* remove;
    QAction* copyText;
    QAction* exportList;
    QAction* filter;
    QAction* find;
    QAction* nextPane;
    QAction* resetColumns;
    QAction* about;
    QAction* quit;

    // Those that the selection does not offer can't be chosen. Not within an operation of the console.
    void update(Operations& operations) const;
    // The verbs that the selection offers.
    void addVerbs(QMenu& menu) const;

private:
    QAction* make(const QString& text, const QString& statusTip, const QKeySequence& key) const;

    QWidget& window_;
};

} // namespace desktop
