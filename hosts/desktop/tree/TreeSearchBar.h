#pragma once

#include "hosts/desktop/activity/Operations.h"

#include <QLineEdit>

namespace desktop {

// The box for searching the tree. Enter goes to the next item that contains the text, at first only among items already
// read; pressed again after nothing was found, it reads the others too.
class TreeSearchBar final : public QLineEdit {
public:
    // Outlives it.
    explicit TreeSearchBar(Operations& operations, QWidget* parent = nullptr);

    // Called with a message about the search; empty when it has found something.
    std::function<void(const QString&)> onMessage;
    // Called when the user leaves the box for the tree.
    std::function<void()> onLeave;

    void findNext();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void say(const QString& message) const;

    Operations& operations_;
    bool lookEverywhere_ = false;
};

} // namespace desktop
