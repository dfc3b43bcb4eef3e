#include "queues/DialogStatus.h"

#include <gtest/gtest.h>

namespace {

using queues::physicalStatusWord;
using queues::printingStatusWord;

TEST(DialogStatus, hasAWordForEachDigitOfThePhysicalStatus) {
    const std::u16string_view words[] = {u"OK",
                                         u"Warning: Low Paper",
                                         u"Warning: Low Toner",
                                         u"Warning: Service Needed",
                                         u"Error: No Paper",
                                         u"Error: No Toner",
                                         u"Error: Offline",
                                         u"Error: Paper Jam",
                                         u"Error: Door Open",
                                         u"Error: No Contact"};
    for (std::uint8_t digit = 0; digit < 10; ++digit) {
        EXPECT_EQ(physicalStatusWord(static_cast<std::uint8_t>('0' + digit)), words[digit]);
    }
}

TEST(DialogStatus, hasAWordForEachDigitOfThePrintingStatus) {
    const std::u16string_view words[] = {u"Idle", u"Dispatcher", u"Connecting Client", u"Connecting Printer",
                                         u"Printing"};
    for (std::uint8_t digit = 0; digit < 5; ++digit) {
        EXPECT_EQ(printingStatusWord(static_cast<std::uint8_t>('0' + digit)), words[digit]);
    }
}

TEST(DialogStatus, isNoneForEverythingElseAndSoForTheNumbersOfTheTree) {
    for (const std::uint8_t other : std::initializer_list<std::uint8_t>{0, 4, 9, 0x2F, 0x3A, 0xFF}) {
        EXPECT_EQ(physicalStatusWord(other), u"None");
    }
    for (const std::uint8_t other : std::initializer_list<std::uint8_t>{0, 3, 0x2F, 0x35, 0xFF}) {
        EXPECT_EQ(printingStatusWord(other), u"None");
    }
}

TEST(DialogStatus, makesTheStateOfARow) {
    const auto state = queues::stateOf('4', '4');
    ASSERT_TRUE(state);
    EXPECT_EQ(state->severity, console::Severity::error);
    EXPECT_EQ(console::describe(*state), u"Error: No Paper, Printing");
    EXPECT_EQ(queues::stateOf('3', '0')->severity, console::Severity::warning);
    EXPECT_EQ(queues::stateOf('0', '0')->severity, console::Severity::none);
}

TEST(DialogStatus, leavesOutOfTheStateWhatMeansNothing) {
    EXPECT_EQ(console::describe(*queues::stateOf('6', 4)), u"Error: Offline");
    EXPECT_EQ(console::describe(*queues::stateOf(4, '1')), u"Dispatcher");
    EXPECT_FALSE(queues::stateOf(4, 4));
}

} // namespace
