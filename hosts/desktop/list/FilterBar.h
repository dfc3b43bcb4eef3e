#pragma once

#include "hosts/desktop/activity/Operations.h"
#include "shell/Observers.h"

#include <QLineEdit>

namespace desktop {

// The box for the text by which the list is filtered; the list follows while the user types. A warning sign marks what
// was probably meant differently.
class FilterBar final : public QLineEdit, private shell::ShellObserver {
public:
    // Both outlive it.
    FilterBar(Operations& operations, shell::Observers& observers, QWidget* parent = nullptr);
    ~FilterBar() override;

    // Called when the user leaves the box for the rows.
    std::function<void()> onLeave;
    // Called when the filter has changed.
    std::function<void()> onFiltered;
    // What in the filter was probably meant differently, in sentences; empty when nothing was.
    [[nodiscard]] const QString& problem() const { return problem_; }
    // Called with the problem when it may have changed.
    std::function<void(const QString&)> onProblem;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void selectionChanged() override;
    void columnsChanged() override;
    void filter();
    void showProblem();

    Operations& operations_;
    shell::Observers& observers_;
    QString problem_;
    QAction* mark_ = nullptr; // the warning sign in the box
    bool asked_ = false;
    bool following_ = false; // showing the console's filter, which need not be reported back
};

} // namespace desktop
