#include "hosts/desktop/tree/TreeSearchBar.h"

#include "hosts/desktop/look/Text.h"

#include <QKeyEvent>

namespace desktop {

TreeSearchBar::TreeSearchBar(Operations& operations, QWidget* parent) : QLineEdit(parent), operations_(operations) {
    setAccessibleName(QStringLiteral("Find in the tree"));
    setPlaceholderText(QStringLiteral("Find in the tree (Ctrl+Shift+F)"));
    setToolTip(QStringLiteral("Enter goes to the next item that contains this text"));
    setClearButtonEnabled(true);
    setMaxLength(1'000);
    connect(this, &QLineEdit::textChanged, this, [this] {
        lookEverywhere_ = false;
        say({});
    });
}

void TreeSearchBar::say(const QString& message) const {
    if (onMessage) {
        onMessage(message);
    }
}

void TreeSearchBar::findNext() {
    if (text().isEmpty()) {
        return;
    }
    const auto wanted = toWideString(text());
    console::ScopeId found = 0;
    const bool asked = operations_.perform([&](shell::Shell& console) {
        found = console.find(wanted, lookEverywhere_);
        return true;
    });
    if (!asked) {
        return;
    }
    if (found == 0) {
        say(lookEverywhere_
                ? QStringLiteral("No item of the tree contains this text.")
                : QStringLiteral("No item read so far contains this text. Press Enter again to search the rest, too."));
        lookEverywhere_ = !lookEverywhere_;
        return;
    }
    say({});
    operations_.perform([&](shell::Shell& console) { return console.reveal(found); });
    operations_.perform([&](shell::Shell& console) { return console.select(found); });
}

void TreeSearchBar::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        operations_.later([this] { findNext(); });
        return;
    case Qt::Key_Escape:
        if (text().isEmpty()) {
            break;
        }
        clear();
        event->accept();
        return;
    case Qt::Key_Down:
        event->accept();
        if (onLeave) {
            onLeave();
        }
        return;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace desktop
