#include "server/drivers/UploadTime.h"

#include "tests/support/Environment.h"

#include <gtest/gtest.h>

#include <ctime>

namespace server {
namespace {

using namespace std::chrono_literals;

TEST(UploadTime, isTheWallClockInTheFormOfTheWireWithThreeDigitsOfAFraction) {
    const support::EnvironmentVariable zone("TZ", "UTC0");
    tzset();
    const std::chrono::system_clock::time_point moment(1394039049s + 25ms);
    EXPECT_EQ(uploadTime(moment), "2014-03-05 17:04:09.025");
}

} // namespace
} // namespace server
