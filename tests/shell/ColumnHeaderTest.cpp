#include "shell/ColumnHeader.h"

#include <gtest/gtest.h>

namespace {

using console::Result;
using shell::ColumnHeader;

TEST(ColumnHeader, aColumnInsertedWhereOneStandsTakesItsPlace) {
    ColumnHeader header;
    header.InsertColumn(0, u"Region Name", console::columnLeft, 100);
    header.InsertColumn(0, u"Printer Name", console::columnLeft, 200);
    header.InsertColumn(1, u"Model", console::columnLeft, 300);

    header.commit();

    EXPECT_EQ(header.columns(), (std::vector<shell::ShownColumn>{{u"Printer Name", 200}, {u"Model", 300}}));
}

TEST(ColumnHeader, anAutomaticWidthIsThatOfTheTitle) {
    ColumnHeader header;
    header.measure = [](wire::WideStringView title) { return static_cast<std::int32_t>(title.size() * 10); };

    header.InsertColumn(0, u"Queue", console::columnLeft, console::automaticWidth);

    std::int32_t width = 0;
    EXPECT_EQ(header.GetColumnWidth(0, width), Result::ok);
    EXPECT_EQ(width, 50);
}

TEST(ColumnHeader, peopleSeeWhatIsCommitted) {
    ColumnHeader header;
    header.InsertColumn(0, u"Queue", console::columnLeft, 10);
    EXPECT_TRUE(header.columns().empty());

    EXPECT_TRUE(header.commit());
    EXPECT_EQ(header.columns().size(), 1U);
    EXPECT_FALSE(header.commit());
}

TEST(ColumnHeader, aRestartKeepsTheColumnsUntilOthersCome) {
    ColumnHeader header;
    header.InsertColumn(0, u"One", console::columnLeft, 10);
    header.InsertColumn(1, u"Two", console::columnLeft, 10);
    header.restart();
    header.commit();
    EXPECT_EQ(header.columns().size(), 2U);

    header.restart();
    header.InsertColumn(0, u"Three", console::columnLeft, 10);
    header.commit();

    EXPECT_EQ(header.columns(), (std::vector<shell::ShownColumn>{{u"Three", 10}}));
}

TEST(ColumnHeader, refusesWhatIsNotThere) {
    ColumnHeader header;
    std::int32_t width = 0;

    EXPECT_EQ(header.GetColumnWidth(0, width), Result::failed);
    EXPECT_EQ(header.SetColumnWidth(-1, 10), Result::failed);
    EXPECT_EQ(header.InsertColumn(-1, u"x", console::columnLeft, 10), Result::failed);
    EXPECT_EQ(header.InsertColumn(0, nullptr, console::columnLeft, 10), Result::failed);
}

} // namespace
