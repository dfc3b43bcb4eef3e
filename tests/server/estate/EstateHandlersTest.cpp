#include "server/estate/EstateHandlers.h"

#include "tests/server/support/Answers.h"
#include "tests/server/support/TestEstate.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using namespace test; // the words of requests

TEST(EstateHandlers, theOrderOfAPrinterComesAndZeroForOneThatIsNotThere) {
    TestEstate place;
    const auto id = place.addPrinter(u"P", place.addRegion(u"North"));
    place.recordService().setOctetOrder({.order = 2, .printerId = id});
    EXPECT_EQ(support::toHex(answerOf(place.connection(), 76, str8(id))),
              "01 09 00 00 00 0C 00 00 00 01 09 00 00 00 02 00 00 00");
    EXPECT_EQ(support::toHex(answerOf(place.connection(), 76, str8("nobody"))),
              "01 09 00 00 00 0A 00 00 00 01 09 00 00 00 00 00 00 00");
}

} // namespace
} // namespace server
