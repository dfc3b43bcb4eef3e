#pragma once

#include "hosts/desktop/activity/Operations.h"
#include "shell/Observers.h"

#include <QLineEdit>

namespace desktop {

// Where the person types what the rows of the list are to hold; the list follows as they type.
class FilterBar final : public QLineEdit, private shell::ShellObserver {
public:
    // Both outlive it.
    FilterBar(Operations& operations, shell::Observers& observers, QWidget* parent = nullptr);
    ~FilterBar() override;

    // The person is done here and goes to the rows.
    std::function<void()> onLeave;
    // The filter has changed.
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
