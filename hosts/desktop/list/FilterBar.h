#pragma once

#include "hosts/desktop/activity/Operations.h"
#include "shell/Observers.h"

#include <QLineEdit>

namespace desktop {

// The box for the text by which the list is filtered; the list follows while the user types.
class FilterBar final : public QLineEdit, private shell::ShellObserver {
public:
    // Both outlive it.
    FilterBar(Operations& operations, shell::Observers& observers, QWidget* parent = nullptr);
    ~FilterBar() override;

    // Called when the user leaves the box for the rows.
    std::function<void()> onLeave;
    // Called when the filter has changed.
    std::function<void()> onFiltered;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void selectionChanged() override;
    void filter();

    Operations& operations_;
    shell::Observers& observers_;
    bool asked_ = false;
};

} // namespace desktop
