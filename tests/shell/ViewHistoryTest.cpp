#include "shell/ViewHistory.h"

#include <gtest/gtest.h>

namespace {

const auto all = [](console::ScopeId) { return true; };

TEST(ViewHistory, beginsWithNowhereToGo) {
    shell::ViewHistory history;

    EXPECT_EQ(history.back(all), 0);
    EXPECT_FALSE(history.canGoForward(all));
}

TEST(ViewHistory, goesBackAndForward) {
    shell::ViewHistory history;
    history.visit(1);
    history.visit(2);

    EXPECT_EQ(history.back(all), 1);
    EXPECT_EQ(history.forward(all), 2);
}

TEST(ViewHistory, aVisitForgetsWhatWasAhead) {
    shell::ViewHistory history;
    history.visit(1);
    history.visit(2);
    history.back(all);
    history.visit(3);

    EXPECT_EQ(history.forward(all), 0);
    EXPECT_EQ(history.back(all), 1);
}

TEST(ViewHistory, skipsWhatIsGone) {
    shell::ViewHistory history;
    history.visit(1);
    history.visit(2);
    history.visit(3);

    EXPECT_EQ(history.back([](console::ScopeId id) { return id != 2; }), 1);
}

} // namespace
