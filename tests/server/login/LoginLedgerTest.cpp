#include "server/login/LoginLedger.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using namespace std::chrono_literals;
using Clock = LoginLedger::Clock;

const auto here = asio::ip::make_address("10.0.0.1");
const auto there = asio::ip::make_address("10.0.0.2");

TEST(LoginLedger, commandsAreTakenFromAnAddressThatHasLoggedIn) {
    LoginLedger ledger(60min);
    const auto now = Clock::now();
    EXPECT_FALSE(ledger.mayCommand(here, now));
    ledger.endTry(here, now, true);
    EXPECT_TRUE(ledger.mayCommand(here, now));
    EXPECT_TRUE(ledger.mayCommand(here, now + 60min));
    EXPECT_FALSE(ledger.mayCommand(here, now + 60min + 1s));
    EXPECT_FALSE(ledger.mayCommand(there, now));
}

TEST(LoginLedger, aTimeOfZeroLetsEverybodyIn) {
    EXPECT_TRUE(LoginLedger(0min).mayCommand(here, Clock::now()));
}

TEST(LoginLedger, aFailedLoginLetsNobodyIn) {
    LoginLedger ledger(60min);
    ledger.endTry(here, Clock::now(), false);
    EXPECT_FALSE(ledger.mayCommand(here, Clock::now()));
}

TEST(LoginLedger, failuresMakeAnAddressWaitLongerAndLonger) {
    LoginLedger ledger(60min);
    auto now = Clock::now();
    Clock::duration last{};
    for (int failure = 1; failure <= 12; ++failure) {
        const auto wait = ledger.beginTry(here, now);
        ASSERT_TRUE(wait);
        EXPECT_GE(*wait, last) << failure;
        EXPECT_LE(*wait, 8s) << failure;
        EXPECT_TRUE(failure > 3 || *wait == 0s) << failure;
        last = *wait;
        now += *wait;
        ledger.endTry(here, now, false);
    }
    EXPECT_EQ(last, 8s);
    EXPECT_EQ(ledger.beginTry(there, now), Clock::duration::zero());
}

TEST(LoginLedger, triesAtOnceWaitInTurnAndTooManyAreTurnedAway) {
    LoginLedger ledger(60min);
    const auto now = Clock::now();
    for (int failure = 0; failure < 10; ++failure) {
        ledger.endTry(here, now, false);
    }
    EXPECT_EQ(ledger.beginTry(here, now), 8s);
    EXPECT_EQ(ledger.beginTry(here, now), std::nullopt);
}

TEST(LoginLedger, soManyTriesOfOneAddressMayBeUnderWay) {
    LoginLedger ledger(60min);
    const auto now = Clock::now();
    for (int count = 0; count < 32; ++count) {
        EXPECT_TRUE(ledger.beginTry(here, now)) << count;
    }
    EXPECT_FALSE(ledger.beginTry(here, now));
    EXPECT_TRUE(ledger.beginTry(there, now));
    ledger.endTry(here, now, true);
    EXPECT_TRUE(ledger.beginTry(here, now));
    EXPECT_FALSE(ledger.beginTry(here, now));
}

TEST(LoginLedger, aLoginEndsTheWaiting) {
    LoginLedger ledger(60min);
    const auto now = Clock::now();
    for (int failure = 0; failure < 10; ++failure) {
        ledger.endTry(here, now, false);
    }
    ledger.endTry(here, now, true);
    EXPECT_EQ(ledger.beginTry(here, now), Clock::duration::zero());
}

TEST(LoginLedger, failuresAreForgivenAfterSomeMinutes) {
    LoginLedger ledger(60min);
    const auto now = Clock::now();
    for (int failure = 0; failure < 10; ++failure) {
        ledger.endTry(here, now, false);
    }
    ledger.endTry(there, now + 11min, false);
    EXPECT_EQ(ledger.beginTry(here, now + 11min), Clock::duration::zero());
}

} // namespace
} // namespace server
