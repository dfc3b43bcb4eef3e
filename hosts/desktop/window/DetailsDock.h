#pragma once

#include "shell/Shell.h"

#include <QDockWidget>

class QTextBrowser;

namespace desktop {

// Shows everything that the list knows about the selected row, beside or below it: every column with its whole text,
// also the columns that are hidden. The text can be selected and copied. Without a row it shows the displayed item.
class DetailsDock final : public QDockWidget {
public:
    explicit DetailsDock(QWidget* parent);

    // Displays the selection of the console; keeps the place of the text while that stays the same.
    void update(const shell::Shell& shell);

private:
    QTextBrowser* text_;
    QString shown_;
};

} // namespace desktop
