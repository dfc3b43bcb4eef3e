#pragma once

#include "hosts/desktop/activity/Operations.h"
#include "hosts/desktop/look/IconStrips.h"
#include "tests/shell/ShellFixture.h"

#include <QAbstractItemModelTester>
#include <QCoreApplication>
#include <QTest>

namespace desktoptest {

// Checks that a model keeps Qt's rules throughout the test, for as long as this object lives.
class Tested {
public:
    explicit Tested(QAbstractItemModel& model)
        : tester_(&model, QAbstractItemModelTester::FailureReportingMode::Fatal) {}

private:
    QAbstractItemModelTester tester_;
};

// Runs the event loop until the condition holds; false when it does not within a generous time limit.
template <class Condition>
bool waitFor(Condition condition) {
    return QTest::qWaitFor(condition, 20'000);
}

// A shell on a small estate, with everything that models and views need.
class ModelFixture : public shelltest::ShellFixture {
protected:
    // Runs postponed work until the console is idle.
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
