#include "server/Schema.h"
#include "server/login/Accounts.h"
#include "server/login/Crypto.h"
#include "server/login/LoginLedger.h"

#include "tests/server/Sealing.h"
#include "tests/server/TestFolder.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using namespace std::chrono_literals;
using test::seal;
using test::TestFolder;
using Clock = LoginLedger::Clock;

TEST(PasswordHash, onlyThePasswordItselfMatches) {
    const auto hash = PasswordHash::of(u"secret");
    EXPECT_TRUE(hash.matches(u"secret"));
    EXPECT_FALSE(hash.matches(u"Secret"));
    EXPECT_FALSE(hash.matches(u""));
}

TEST(PasswordHash, equalPasswordsHaveDifferentHashes) {
    const auto one = PasswordHash::of(u"secret");
    const auto two = PasswordHash::of(u"secret");
    EXPECT_NE(one.salt, two.salt);
    EXPECT_NE(one.hash, two.hash);
    EXPECT_GE(one.iterations, 200000);
}

TEST(PasswordHash, theHashIsTheOneThatTheStandardGives) {
    PasswordHash hash{.salt = {'s', 'a', 'l', 't'}, .iterations = 1, .hash = {}};
    // PBKDF2-HMAC-SHA256 of the bytes 70 00, with one iteration.
    hash.hash = {0x81, 0x15, 0x28, 0x84, 0xDD, 0x9A, 0x20, 0x8F, 0x9B, 0xE6, 0x8D, 0xC3, 0x12, 0xD9, 0x94, 0xC0,
                 0x96, 0xFD, 0x10, 0xC8, 0x4D, 0x8C, 0xF5, 0x6A, 0x11, 0x99, 0x5F, 0x7C, 0x60, 0x4B, 0xC2, 0xB2};
    EXPECT_TRUE(hash.matches(u"p"));
}

TEST(LoginKey, unsealsWhatWasSealedUnderItsPublicHalf) {
    const auto key = LoginKey::generate();
    EXPECT_EQ(key.unseal(seal(key.publicDer(), u"Zoë")), u"Zoë");
    EXPECT_EQ(key.unseal(seal(key.publicDer(), u"")), u"");
    EXPECT_EQ(key.unseal(seal(key.publicDer(), std::u16string(122, u'x'))), std::u16string(122, u'x'));
}

TEST(LoginKey, survivesBeingStored) {
    const auto key = LoginKey::generate();
    const auto stored = LoginKey::fromPrivateDer(key.privateDer());
    EXPECT_EQ(stored.publicDer(), key.publicDer());
    EXPECT_EQ(stored.unseal(seal(key.publicDer(), u"abc")), u"abc");
}

TEST(LoginKey, bytesThatAreNotItsWorkGiveNothing) {
    const auto key = LoginKey::generate();
    const auto other = LoginKey::generate();
    EXPECT_EQ(key.unseal({}), std::nullopt);
    EXPECT_EQ(key.unseal(Bytes(1, 7)), std::nullopt);
    EXPECT_EQ(key.unseal(Bytes(256, 0xFF)), std::nullopt);
    EXPECT_EQ(key.unseal(Bytes(4096, 1)), std::nullopt);
    EXPECT_EQ(key.unseal(seal(other.publicDer(), u"abc")), std::nullopt);
}

TEST(LoginKey, aPublicKeyAloneIsRefused) {
    const auto key = LoginKey::generate();
    EXPECT_THROW((void)LoginKey::fromPrivateDer(key.publicDer()), std::runtime_error);
    EXPECT_THROW((void)LoginKey::fromPrivateDer(Bytes{1, 2, 3}), std::runtime_error);
}

class AccountsTest : public ::testing::Test {
protected:
    bool logIn(const std::u16string& user, const std::u16string& password) {
        const auto key = accounts_.publicKey();
        return accounts_.verify({seal(key, user), seal(key, u"OFFICE"), seal(key, password)});
    }

    TestFolder folder_;
    Store store_{folder_ / "estate.db", schema()};
    Accounts accounts_{store_};
};

TEST_F(AccountsTest, anAccountLetsInWithItsPasswordOnly) {
    accounts_.save(u"admin", u"secret");
    EXPECT_TRUE(logIn(u"admin", u"secret"));
    EXPECT_TRUE(logIn(u"Admin", u"secret"));
    EXPECT_FALSE(logIn(u"admin", u"wrong"));
    EXPECT_FALSE(logIn(u"nobody", u"secret"));
    EXPECT_FALSE(logIn(u"", u""));
}

TEST_F(AccountsTest, savingAgainGivesAnotherPassword) {
    accounts_.save(u"admin", u"first");
    accounts_.save(u"ADMIN", u"second");
    EXPECT_FALSE(logIn(u"admin", u"first"));
    EXPECT_TRUE(logIn(u"admin", u"second"));
}

TEST_F(AccountsTest, aPasswordThatWasRightIsRightAgainUntilItChanges) {
    accounts_.save(u"admin", u"secret");
    EXPECT_TRUE(logIn(u"admin", u"secret"));
    EXPECT_TRUE(logIn(u"admin", u"secret"));
    EXPECT_FALSE(logIn(u"admin", u"secret "));
    EXPECT_FALSE(logIn(u"other", u"secret"));
    accounts_.save(u"admin", u"changed");
    EXPECT_FALSE(logIn(u"admin", u"secret"));
    EXPECT_TRUE(logIn(u"admin", u"changed"));
}

TEST_F(AccountsTest, theKeyStaysTheSame) {
    const auto key = accounts_.publicKey();
    EXPECT_EQ(Accounts(store_).publicKey(), key);
}

TEST_F(AccountsTest, credentialsThatCannotBeUnsealedAreWrong) {
    accounts_.save(u"admin", u"secret");
    const auto key = accounts_.publicKey();
    EXPECT_FALSE(accounts_.verify({}));
    EXPECT_FALSE(accounts_.verify({seal(key, u"admin"), Bytes(256, 1), seal(key, u"secret")}));
    EXPECT_FALSE(accounts_.verify({seal(key, u"admin"), seal(key, u""), Bytes(256, 0)}));
}

TEST_F(AccountsTest, theDatabaseHoldsNoPassword) {
    accounts_.save(u"admin", u"correct horse");
    auto database = store_.connect();
    database.exec("PRAGMA wal_checkpoint(TRUNCATE)");
    std::ifstream stream(store_.file(), std::ios::binary);
    const std::string content((std::istreambuf_iterator<char>(stream)), {});
    std::string wide;
    for (const char character : std::string("correct horse"))
        wide += {character, '\0'};
    EXPECT_EQ(content.find("correct horse"), std::string::npos);
    EXPECT_EQ(content.find(wide), std::string::npos);
    EXPECT_NE(content.find(std::string("a\0d\0m\0i\0n\0", 10)), std::string::npos);
}

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
    for (int failure = 0; failure < 10; ++failure)
        ledger.endTry(here, now, false);
    EXPECT_EQ(ledger.beginTry(here, now), 8s);
    EXPECT_EQ(ledger.beginTry(here, now), std::nullopt);
}

TEST(LoginLedger, soManyTriesOfOneAddressMayBeUnderWay) {
    LoginLedger ledger(60min);
    const auto now = Clock::now();
    for (int count = 0; count < 32; ++count)
        EXPECT_TRUE(ledger.beginTry(here, now)) << count;
    EXPECT_FALSE(ledger.beginTry(here, now));
    EXPECT_TRUE(ledger.beginTry(there, now));
    ledger.endTry(here, now, true);
    EXPECT_TRUE(ledger.beginTry(here, now));
    EXPECT_FALSE(ledger.beginTry(here, now));
}

TEST(LoginLedger, aLoginEndsTheWaiting) {
    LoginLedger ledger(60min);
    const auto now = Clock::now();
    for (int failure = 0; failure < 10; ++failure)
        ledger.endTry(here, now, false);
    ledger.endTry(here, now, true);
    EXPECT_EQ(ledger.beginTry(here, now), Clock::duration::zero());
}

TEST(LoginLedger, failuresAreForgivenAfterSomeMinutes) {
    LoginLedger ledger(60min);
    const auto now = Clock::now();
    for (int failure = 0; failure < 10; ++failure)
        ledger.endTry(here, now, false);
    ledger.endTry(there, now + 11min, false);
    EXPECT_EQ(ledger.beginTry(here, now + 11min), Clock::duration::zero());
}

} // namespace
} // namespace server
