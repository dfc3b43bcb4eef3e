#include "hosts/desktop/list/FilterBar.h"

#include "hosts/desktop/look/Text.h"

#include <QKeyEvent>
#include <QSignalBlocker>

#include <utility>

namespace desktop {

FilterBar::FilterBar(Operations& operations, shell::Observers& observers, QWidget* parent)
    : QLineEdit(parent), operations_(operations), observers_(observers) {
    setAccessibleName(QStringLiteral("Filter the list"));
    setPlaceholderText(QStringLiteral("Filter this list (Ctrl+F)"));
    setToolTip(QStringLiteral("Shows only the rows that contain this text, in any column"));
    setClearButtonEnabled(true);
    setMaxLength(1'000);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!std::exchange(asked_, true)) { // letters typed in quick succession are filtered once
            operations_.later([this] { filter(); });
        }
    });
    observers_.add(*this);
}

FilterBar::~FilterBar() {
    observers_.remove(*this);
}

void FilterBar::filter() {
    asked_ = false;
    const auto wanted = toWideString(text());
    operations_.perform([&](shell::Shell& console) {
        if (console.pane().filterText() != wanted) {
            console.filter(wanted);
        }
        return true;
    });
    // A row that is filtered out must not be changed by a key press.
    if (const auto row = operations_.shell().selection().row; row != 0 && !operations_.shell().pane().indexOf(row)) {
        operations_.perform([](shell::Shell& console) { return console.selectRow(0); });
    }
    if (onFiltered) {
        onFiltered();
    }
}

void FilterBar::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        if (text().isEmpty()) {
            break;
        }
        clear();
        event->accept();
        return;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (onLeave) {
            onLeave();
        }
        event->accept();
        return;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}

// The list of another node starts without a filter.
void FilterBar::selectionChanged() {
    const QString filter = toQString(operations_.shell().pane().filterText());
    if (!asked_ && text() != filter) {
        const QSignalBlocker silence(this);
        setText(filter);
    }
}

} // namespace desktop
