#include "shell/ListDiff.h"

#include <gtest/gtest.h>

namespace {

using shell::ListStep;
using shell::listSteps;
using StepKind = ListStep::Kind;
using Ids = std::vector<std::intptr_t>;
using Steps = std::vector<ListStep>;

TEST(ListDiff, equalListsTakeNoStep) {
    EXPECT_EQ(listSteps(Ids{1, 2, 3}, Ids{1, 2, 3}), Steps{});
}

TEST(ListDiff, aRunInTheMiddleIsRemovedAtOnce) {
    EXPECT_EQ(listSteps(Ids{1, 2, 3, 4}, Ids{1, 4}), (Steps{{StepKind::remove, 1, 2}}));
}

TEST(ListDiff, removalsComeFromTheEnd) {
    EXPECT_EQ(listSteps(Ids{1, 2, 3, 4}, Ids{2, 4}), (Steps{{StepKind::remove, 2, 1}, {StepKind::remove, 0, 1}}));
}

TEST(ListDiff, insertionsComeAfterRemovalsFromTheStart) {
    EXPECT_EQ(listSteps(Ids{1, 2}, Ids{5, 2, 6, 7}),
              (Steps{{StepKind::remove, 0, 1}, {StepKind::insert, 0, 1}, {StepKind::insert, 2, 2}}));
}

TEST(ListDiff, fromAndToNothingIsOneStep) {
    EXPECT_EQ(listSteps(Ids{}, Ids{1, 2}), (Steps{{StepKind::insert, 0, 2}}));
    EXPECT_EQ(listSteps(Ids{1, 2}, Ids{}), (Steps{{StepKind::remove, 0, 2}}));
}

TEST(ListDiff, changesBetweenEqualEndsStandAtTheirPlaces) {
    EXPECT_EQ(listSteps(Ids{1, 2, 3, 4}, Ids{1, 2, 9, 3, 4}), (Steps{{StepKind::insert, 2, 1}}));
    EXPECT_EQ(listSteps(Ids{1, 2, 3, 4}, Ids{1, 9, 8, 4}), (Steps{{StepKind::remove, 1, 2}, {StepKind::insert, 1, 2}}));
    EXPECT_EQ(listSteps(Ids{1, 2, 3, 4, 5}, Ids{1, 4, 3, 2, 5}), std::nullopt);
}

TEST(ListDiff, anotherOrderCantBeReachedInSteps) {
    EXPECT_EQ(listSteps(Ids{1, 2, 3}, Ids{2, 1, 3}), std::nullopt);
}

TEST(ListDiff, tooManyStepsAreNone) {
    Ids before;
    Ids after;
    for (std::intptr_t id = 0; id < 2000; ++id) {
        before.push_back(id);
        if (id % 2 == 0) {
            after.push_back(id);
        }
    }

    EXPECT_EQ(listSteps(before, after), std::nullopt);
}

} // namespace
