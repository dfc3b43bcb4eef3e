#include "server/login/LoginKey.h"

#include "tests/server/support/Sealing.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using test::seal;

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

} // namespace
} // namespace server
