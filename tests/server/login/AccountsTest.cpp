#include "server/login/Accounts.h"

#include "server/Schema.h"
#include "tests/server/support/Sealing.h"
#include "tests/server/support/TestFolder.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using test::seal;
using test::TestFolder;

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
    auto database = store_.openDatabase();
    database.exec("PRAGMA wal_checkpoint(TRUNCATE)");
    std::ifstream stream(store_.file(), std::ios::binary);
    const std::string content((std::istreambuf_iterator<char>(stream)), {});
    std::string wide;
    for (const char character : std::string("correct horse")) {
        wide += {character, '\0'};
    }
    EXPECT_EQ(content.find("correct horse"), std::string::npos);
    EXPECT_EQ(content.find(wide), std::string::npos);
    EXPECT_NE(content.find(std::string("a\0d\0m\0i\0n\0", 10)), std::string::npos);
}

} // namespace
} // namespace server
