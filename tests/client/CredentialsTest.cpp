#include "client/Credentials.h"

#include "tests/client/ServerKey.h"

#include <gtest/gtest.h>
#include <tomcrypt.h>

#include <utility>

namespace client {
namespace {

class Credentials : public testing::Test {
protected:
    Credentials() { initCrypto(); }

    static std::string publicKey() {
        const support::Bytes bytes = serverKey().publicHalf();
        return {bytes.begin(), bytes.end()};
    }

    static std::string text(const char* bytes) {
        const support::Bytes taken = support::hex(bytes);
        return {taken.begin(), taken.end()};
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

TEST_F(Credentials, aKeyWithAnyByteChangedDoesNoHarm) {
    const std::string key = publicKey();
    testing::internal::CaptureStdout();
    for (std::size_t at = 0; at < key.size(); ++at) {
        for (const int change : {0x01, 0x80, 0xFF}) {
            std::string changed = key;
            changed[at] = static_cast<char>(changed[at] ^ change);
            EXPECT_LE(rsaEncrypt("x", changed).size(), longestKey);
        }
    }
    static_cast<void>(testing::internal::GetCapturedStdout());
}

TEST_F(Credentials, aKeyThatEndsAnywhereGivesAnEmptyText) {
    const std::string key = publicKey();
    for (std::size_t length = 0; length < key.size(); ++length) {
        EXPECT_EQ(rsaEncrypt("x", key.substr(0, length)), "") << length;
    }
}

TEST_F(Credentials, aModulusOfZeroOrOneOrBelowGivesAnEmptyText) {
    EXPECT_EQ(rsaEncrypt("x", text("30 06 02 01 00 02 01 03")), "");
    EXPECT_EQ(rsaEncrypt("x", text("30 06 02 01 01 02 01 03")), "");
    EXPECT_EQ(rsaEncrypt("x", text("30 06 02 01 FF 02 01 03")), "");
}

TEST_F(Credentials, aKeyLongerThanAnyGivesAnEmptyTextAtOnce) {
    const std::string number = text("02 82 04 00") + std::string(1024, 0x7F);
    const std::string tooLong = text("30 82 08 08") + number + number;

    EXPECT_GT(tooLong.size(), longestKey);
    EXPECT_EQ(rsaEncrypt("x", tooLong), "");
}

TEST_F(Credentials, nothingIsSealedBeforeTheCryptographyIsReady) {
    const std::string key = publicKey();
    const ltc_math_descriptor ready = std::exchange(ltc_mp, {});
    const std::string cipher = rsaEncrypt("x", key);
    ltc_mp = ready;

    EXPECT_EQ(cipher, "");
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
