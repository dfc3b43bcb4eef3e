#pragma once

#include "hosts/desktop/activity/Operations.h"

#include <QLineEdit>

namespace desktop {

// Where the person types what to look for in the tree. Enter goes to the next item that holds it, first among those
// that were read already; pressed again after nothing was found, it reads the others too.
class TreeSearchBar final : public QLineEdit {
public:
    // Outlives it.
    explicit TreeSearchBar(Operations& operations, QWidget* parent = nullptr);

    // Called with what there is to say about the search; empty when it has found something.
    std::function<void(const QString&)> onMessage;
    // The person is done here and goes to the tree.
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
