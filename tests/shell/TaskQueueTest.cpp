#include "shell/TaskQueue.h"

#include <gtest/gtest.h>

namespace {

using shell::Task;
using shell::TaskQueue;
using Kind = Task::Kind;

TEST(TaskQueue, handsOutInTheOrderOfAdding) {
    TaskQueue tasks;
    tasks.add({.kind = Kind::selectScopeItem, .scopeId = 3});
    tasks.add({.kind = Kind::refresh});

    EXPECT_EQ(tasks.next()->scopeId, 3);
    EXPECT_EQ(tasks.next()->kind, Kind::refresh);
    EXPECT_FALSE(tasks.next());
}

TEST(TaskQueue, refreshesSideBySideAreOne) {
    TaskQueue tasks;
    tasks.add({.kind = Kind::refresh});
    tasks.add({.kind = Kind::refresh});

    EXPECT_TRUE(tasks.next());
    EXPECT_TRUE(tasks.empty());
}

TEST(TaskQueue, refreshesWithASelectionInBetweenAreTwo) {
    TaskQueue tasks;
    tasks.add({.kind = Kind::refresh});
    tasks.add({.kind = Kind::selectScopeItem, .scopeId = 3});
    tasks.add({.kind = Kind::refresh});

    tasks.next();
    tasks.next();
    EXPECT_EQ(tasks.next()->kind, Kind::refresh);
}

TEST(TaskQueue, tellsWhenSomethingWasAdded) {
    TaskQueue tasks;
    int added = 0;
    tasks.onAdded = [&] { ++added; };

    tasks.add({.kind = Kind::close});

    EXPECT_EQ(added, 1);
}

} // namespace
