#pragma once

#include "hosts/desktop/activity/Operations.h"
#include "hosts/desktop/look/IconStrips.h"
#include "tests/shell/ShellFixture.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QTest>

namespace desktoptest {

// Holds a model to the rules of Qt for as long as it lives, through everything that the test does.
class Tested {
public:
    explicit Tested(QAbstractItemModel& model)
        : tester_(&model, QAbstractItemModelTester::FailureReportingMode::Fatal) {}

private:
    QAbstractItemModelTester tester_;
};

// Runs what waits for the event loop until the condition holds; false when it does not within a generous time.
template <class Condition>
bool waitFor(Condition condition) {
    return QTest::qWaitFor(condition, 20'000);
}

// A shell on a small estate, with everything that models and views need.
class ModelFixture : public shelltest::ShellFixture {
protected:
    // Runs what was put off until the console is idle.
    void settle() {
        bool done = false;
        operations.later([&] { done = true; });
        ASSERT_TRUE(waitFor([&] { return done; }));
    }

    template <class Work>
    bool perform(Work work) {
        return operations.perform(work);
    }

    desktop::Operations operations{shell, tasks};
    desktop::IconStrips icons;
};

} // namespace desktoptest
