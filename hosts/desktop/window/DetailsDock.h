#pragma once

#include "shell/Shell.h"

#include <QDockWidget>

#include <cstddef>
#include <vector>

class QTextBrowser;

namespace desktop {

// Shows everything that the list knows about the selected rows, beside or below it: every column with its whole text,
// also the columns that are hidden. The text can be selected and copied. Without a row it shows the displayed item.
class DetailsDock final : public QDockWidget {
public:
    explicit DetailsDock(QWidget* parent);

    // Displays the rows, or the item that the list belongs to; keeps the place of the text while that stays the same.
    void update(const shell::Shell& shell, const std::vector<std::size_t>& rows);

private:
    QTextBrowser* text_;
    QString shown_;
};

} // namespace desktop
