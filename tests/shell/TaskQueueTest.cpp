#include "shell/TaskQueue.h"

#include <gtest/gtest.h>

namespace {

using shell::Task;
using shell::TaskQueue;
using TaskKind = Task::Kind;

TEST(TaskQueue, handsOutInTheOrderOfAdding) {
    TaskQueue tasks;
    tasks.add({.kind = TaskKind::selectScopeItem, .scopeId = 3});
    tasks.add({.kind = TaskKind::refresh});

    EXPECT_EQ(tasks.next()->scopeId, 3);
    EXPECT_EQ(tasks.next()->kind, TaskKind::refresh);
    EXPECT_FALSE(tasks.next());
}

TEST(TaskQueue, refreshesSideBySideAreOne) {
    TaskQueue tasks;
    tasks.add({.kind = TaskKind::refresh});
    tasks.add({.kind = TaskKind::refresh});

    EXPECT_TRUE(tasks.next());
    EXPECT_TRUE(tasks.empty());
}

TEST(TaskQueue, refreshesWithASelectionInBetweenAreTwo) {
    TaskQueue tasks;
    tasks.add({.kind = TaskKind::refresh});
    tasks.add({.kind = TaskKind::selectScopeItem, .scopeId = 3});
    tasks.add({.kind = TaskKind::refresh});

    tasks.next();
    tasks.next();
    EXPECT_EQ(tasks.next()->kind, TaskKind::refresh);
}

TEST(TaskQueue, tellsWhenSomethingWasAdded) {
    TaskQueue tasks;
    int added = 0;
    tasks.onAdded = [&] { ++added; };

    tasks.add({.kind = TaskKind::close});

    EXPECT_EQ(added, 1);
}

} // namespace
