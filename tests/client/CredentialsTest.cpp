#include "client/Credentials.h"

#include "tests/client/ServerKey.h"

#include <gtest/gtest.h>

namespace client {
namespace {

class Credentials : public testing::Test {
protected:
    Credentials() { initCrypto(); }

    static std::string publicKey() {
        const support::Bytes bytes = serverKey().publicHalf();
        return {bytes.begin(), bytes.end()};
    }

    static support::Bytes bytesOf(const wire::WideString& units) {
        support::Bytes bytes;
        for (const char16_t unit : units) {
            bytes.push_back(static_cast<std::uint8_t>(unit & 0xFF));
            bytes.push_back(static_cast<std::uint8_t>(unit >> 8));
        }
        return bytes;
    }

    static wire::WideString openedAfterSealing(const wire::WideString& text) {
        return serverKey().open(bytesOf(encryptCredential(publicKey(), text)));
    }
};

TEST_F(Credentials, aSealedTextIsOpenedByTheServer) {
    EXPECT_EQ(openedAfterSealing(u"ge\u00DFler"), u"ge\u00DFler");
}

TEST_F(Credentials, anEmptyTextIsSealedToo) {
    EXPECT_EQ(openedAfterSealing(u""), u"");
}

TEST_F(Credentials, everyUnitGoesThroughUnchanged) {
    const wire::WideString text = u"\U0001F600\uFEFF\xD800";

    EXPECT_EQ(openedAfterSealing(text), text);
}

TEST_F(Credentials, aCipherHas128Units) {
    EXPECT_EQ(encryptCredential(publicKey(), u"x").size(), 128U);
}

TEST_F(Credentials, theSameTextIsSealedDifferentlyEachTime) {
    EXPECT_NE(encryptCredential(publicKey(), u"x"), encryptCredential(publicKey(), u"x"));
}

TEST_F(Credentials, aTextOf122CharactersCanBeSealed) {
    const wire::WideString text(122, u'x');

    EXPECT_EQ(openedAfterSealing(text), text);
}

TEST_F(Credentials, aTextOf123CharactersCannotBeSealed) {
    EXPECT_EQ(encryptCredential(publicKey(), wire::WideString(123, u'x')), u"");
}

TEST_F(Credentials, aKeyThatIsNoneGivesAnEmptyText) {
    EXPECT_EQ(rsaEncrypt("x", ""), "");
    EXPECT_EQ(rsaEncrypt("x", "no key at all"), "");
    EXPECT_EQ(rsaEncrypt("x", publicKey().substr(0, 100)), "");
    EXPECT_EQ(rsaEncrypt("x", std::string(5000, '0')), "");
}

TEST_F(Credentials, aShorterKeyGivesAnEmptyText) {
    const ServerKey shortKey(1024);
    const support::Bytes bytes = shortKey.publicHalf();

    EXPECT_EQ(rsaEncrypt("x", std::string(bytes.begin(), bytes.end())), "");
}

TEST_F(Credentials, sealingLeavesItsTraceOnStandardOutput) {
    testing::internal::CaptureStdout();
    static_cast<void>(rsaEncrypt("x", publicKey()));

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "encoding");
}

TEST_F(Credentials, aKeyThatIsNoneLeavesNoTrace) {
    testing::internal::CaptureStdout();
    static_cast<void>(rsaEncrypt("x", "none"));

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(Credentials, readyingTwiceDoesNoHarm) {
    EXPECT_NO_THROW(initCrypto());
    EXPECT_EQ(openedAfterSealing(u"x"), u"x");
}

} // namespace
} // namespace client
