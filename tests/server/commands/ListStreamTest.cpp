#include "server/commands/ListStream.h"

#include "tests/server/support/Answers.h"
#include "tests/server/support/ManyPrinters.h"
#include "tests/server/support/TestEstate.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using namespace test; // the words of requests

Bytes printersOf(std::int32_t region) {
    return str8("") + u32(static_cast<std::uint32_t>(region)) + u16(0);
}

TEST(ListStream, aCountOfZeroIsOneFrameAndNoRecordFollows) {
    TestEstate place;
    EXPECT_EQ(support::toHex(answerOf(place.connection(), 6, printersOf(1))),
              "01 07 00 00 00 08 00 00 00 01 07 00 00 00 00 00");
}

TEST(ListStream, aRecordGoesOutWithAllItsFields) {
    TestEstate place;
    const auto region = place.addRegion(u"North");
    const auto id = place.addPrinter(u"P", region);
    const auto messages = messagesOf(answerOf(place.connection(), 6, printersOf(region)));
    ASSERT_EQ(messages.size(), 2U);
    const auto idInHex = support::toHex({id.begin(), id.end()});
    EXPECT_EQ(support::toHex(messages[1]), "01 64 00 00 00 00 00 00 00 24 00 " + idInHex +
                                               " 02 00 50 00 00 00 00 00 00 00 00 00 00 00 00 00 "
                                               "03 02 00 00 01 00 00 00 00 00 30 30 30 00 00 00 00 00 00 00 00 00 00 "
                                               "00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

TEST(ListStream, piecesOfAnySizeGiveTheSameBytes) {
    TestEstate place;
    const auto region = place.addRegion(u"North");
    for (int number = 0; number < 20; ++number) {
        place.addPrinter(std::u16string(1, static_cast<char16_t>(u'A' + number)), region);
    }
    const auto whole = answerOf(place.connection(), 6, printersOf(region));
    EXPECT_EQ(messagesOf(whole).size(), 21U);
    for (const std::size_t piece : {1U, 100U, 1000U}) {
        EXPECT_EQ(answerOf(place.connection(), 6, printersOf(region), piece), whole) << piece;
    }
}

TEST(ListStream, aListOfMoreThanAConsoleTakesIsCut) {
    TestEstate place;
    const auto region = place.addRegion(u"North");
    test::addManyPrinters(place.connection(), region, 32769);
    const auto messages = messagesOf(answerOf(place.connection(), 6, printersOf(region)));
    EXPECT_EQ(support::toHex(messages.at(0)), "01 07 00 00 00 FF 7F");
    EXPECT_EQ(messages.size(), 32768U);
}

} // namespace
} // namespace server
