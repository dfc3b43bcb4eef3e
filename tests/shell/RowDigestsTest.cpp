#include "shell/RowDigests.h"
#include "tests/shell/ShellFixture.h"

#include <algorithm>

namespace shelltest {
namespace {

class RowDigests : public testing::Test {
protected:
    RowDigests() {
        for (int number = 0; number < 100; ++number) {
            const auto name = std::to_string(number);
            rows.push_back({.node = std::make_shared<LeafNode>(
                                platform, estate,
                                Estate::Entry{.key = name, .name = wire::toWide(name), .number = u"7", .leaf = true}),
                            .id = number + 1});
        }
    }

    bool note(std::optional<shell::SortOrder> order = std::nullopt) { return digests.note({&parents, &rows}, order); }
    Estate::Entry& entry(std::size_t row) { return dynamic_cast<LeafNode&>(*rows[row].node).entry; }

    Estate estate;
    shell::TaskQueue tasks;
    QuietUserInterface ui{tasks};
    support::MemorySettingsStore settings;
    platform::Platform platform{.ui = ui, .settings = settings};
    std::vector<shell::Row> parents;
    std::vector<shell::Row> rows;
    shell::RowDigests digests;
};

TEST_F(RowDigests, rowsThatComeAgainAreTheSame) {
    EXPECT_FALSE(note());

    EXPECT_TRUE(note());
    EXPECT_TRUE(note());
}

TEST_F(RowDigests, anotherNodeWithTheTextsOfTheOldOneIsTheSame) {
    note();

    rows[99].node = std::make_shared<LeafNode>(platform, estate, entry(99));

    EXPECT_TRUE(note());
}

TEST_F(RowDigests, anotherTextInTheFirstColumnIsAChangeInAnyOrder) {
    for (const auto& order : {std::optional<shell::SortOrder>(), std::optional(shell::SortOrder{0, true}),
                              std::optional(shell::SortOrder{1, false})}) {
        note(order);

        entry(99).name += u"x";

        EXPECT_FALSE(note(order));
        EXPECT_TRUE(note(order));
    }
}

TEST_F(RowDigests, otherColumnsCountOnlyInTheirOwnOrder) {
    note(shell::SortOrder{0, true});
    entry(0).number = u"8";
    EXPECT_TRUE(note(shell::SortOrder{0, true}));

    note(shell::SortOrder{1, true});
    entry(0).number = u"9";
    EXPECT_FALSE(note(shell::SortOrder{1, true}));
}

TEST_F(RowDigests, aColumnWithNumbersCountsByThem) {
    entry(0).time = 20251201;
    note(shell::SortOrder{1, true});

    entry(0).number = u"01.12.25";
    EXPECT_TRUE(note(shell::SortOrder{1, true}));

    entry(0).time = 20261201;
    EXPECT_FALSE(note(shell::SortOrder{1, true}));
}

TEST_F(RowDigests, anotherOrderIsAChange) {
    note();
    EXPECT_FALSE(note(shell::SortOrder{0, true}));
    EXPECT_FALSE(note(shell::SortOrder{0, false}));
}

TEST_F(RowDigests, anotherSequenceIsAChange) {
    note();

    std::swap(rows[98], rows[99]);

    EXPECT_FALSE(note());
}

TEST_F(RowDigests, anotherIdIsAChange) {
    note();

    rows[40].id = 1000;

    EXPECT_FALSE(note());
}

TEST_F(RowDigests, anotherClassIsAChange) {
    note();

    rows[40].node = std::make_shared<FolderNode>(platform, estate, Estate::Entry{.key = "40", .name = u"40"});

    EXPECT_FALSE(note());
}

TEST_F(RowDigests, moreOrFewerRowsAreAChangeInEitherPart) {
    note();
    parents.push_back(rows.back());
    EXPECT_FALSE(note());
    EXPECT_TRUE(note());

    rows.pop_back();
    EXPECT_FALSE(note());
    EXPECT_TRUE(note());
}

TEST_F(RowDigests, nothingIsTheSameAsWhatWasForgotten) {
    note();

    digests.forget();

    EXPECT_FALSE(note());
}

} // namespace
} // namespace shelltest
