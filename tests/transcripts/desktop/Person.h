#pragma once

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/StepList.h"

#include <QMenu>
#include <QMessageBox>
#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace transcripts {

// Whoever sits before the screen: does the steps with the dialogs and boxes that come, each once it is in front, and
// leaves them when something has failed.
class Person final : public QObject {
public:
    // Called before a step is taken; a Failure that it throws ends the steps. Outlives it.
    explicit Person(std::function<void()> beforeStep);

    void setSteps(ctl::StepList steps) { steps_ = std::move(steps); }
    // What to do with the next menu.
    void whenMenuOpens(std::function<void(QMenu&)> act) { onMenu_ = std::move(act); }

    // The statements of boxes, one on a line.
    [[nodiscard]] const std::string& said() const { return said_; }
    // Throws what has failed, also that steps were left over.
    void finish();

private:
    void look();
    void act(QWidget& modal);
    bool goesOn();
    void answer(QMessageBox& box);
    void fail(const ctl::Failure& failure);

    std::function<void()> beforeStep_;
    ctl::StepList steps_;
    std::function<void(QMenu&)> onMenu_;
    std::string said_;
    std::optional<ctl::Failure> failure_;
    std::vector<QWidget*> busyWith_; // the dialogs with which a step is under way, the front-most last
    bool goes_ = false;              // to the front-most dialog, from the event loop
    QTimer timer_;
};

} // namespace transcripts
