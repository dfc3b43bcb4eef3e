#include "client/CQVXAdminClass.h"
#include "client/Credentials.h"
#include "server/login/LoginKey.h"
#include "tests/adversity/Mutations.h"
#include "tests/server/support/RunningServer.h"
#include "tests/server/support/Sealing.h"
#include "tests/server/support/TestClient.h"
#include "tests/support/ScriptedServer.h"

#include <gtest/gtest.h>

namespace adversity {
namespace {

using namespace server::test; // the words of requests
using support::hex;
using support::toHex;

constexpr auto loggedIn = "01 07 00 00 00 09 00 00 00 01 07 00 00 00 01 00";

// One key for all tests, because generating one takes long.
const server::LoginKey& key() {
    static const auto made = server::LoginKey::generate();
    return made;
}

Bytes block(const Bytes& bytes) {
    return u32(static_cast<std::uint32_t>(bytes.size())) + bytes;
}

class LoginMutation : public testing::Test {
protected:
    LoginMutation() {
        server_.accounts().save(u"admin", u"secret");
        const auto publicKey = server_.accounts().publicKey();
        server_.start();
        login_ = request(22, hex("03 00 00 00"));
        for (const auto* credential : {u"admin", u"office", u"secret"}) {
            login_ = std::move(login_) + block(seal(publicKey, credential));
        }
    }

    std::string answerTo(const Bytes& bytes) {
        TestClient client(server_.port());
        client.trySend(bytes);
        client.closeSending();
        return toHex(client.receiveAll());
    }

    [[nodiscard]] bool letsIn(const Bytes& bytes) { return answerTo(bytes).ends_with(loggedIn); }

    RunningServer server_;
    Bytes login_;
};

TEST_F(LoginMutation, aLoginThatIsCutAnywhereLetsNobodyIn) {
    forEachTruncation(login_,
                      [&](const Bytes& bytes, const std::string& what) { EXPECT_FALSE(letsIn(bytes)) << what; });
    EXPECT_TRUE(letsIn(login_));
}

TEST_F(LoginMutation, aDamagedFrameOfALoginLetsNobodyIn) {
    constexpr std::size_t frameSize = 9 + 9 + 9;
    const Bytes frame(login_.begin(), login_.begin() + frameSize);
    const Bytes blocks(login_.begin() + frameSize, login_.end());
    forEachMutation(
        frame, [&](const Bytes& bytes, const std::string& what) { EXPECT_EQ(answerTo(bytes + blocks), "") << what; });
    EXPECT_TRUE(letsIn(login_));
}

// Every wrong password delays the next attempt, and a correct one resets the delay.
TEST_F(LoginMutation, aDamagedLengthOfACredentialLetsNobodyIn) {
    constexpr std::array<std::size_t, 3> places{27, 27 + 260, 27 + 520};
    for (const auto place : places) {
        const auto begin = login_.begin() + static_cast<std::ptrdiff_t>(place);
        forEachFlippedBit({begin, begin + 4}, [&](const Bytes& length, const std::string& what) {
            auto bytes = login_;
            std::ranges::copy(length, bytes.begin() + static_cast<std::ptrdiff_t>(place));
            EXPECT_FALSE(letsIn(bytes)) << place << ": " << what;
            EXPECT_TRUE(letsIn(login_)) << place << ": " << what;
        });
    }
}

TEST(SealedCredential, damageAnywhereNeverOpensAsWhatWasSealed) {
    const auto sealed = seal(key().publicDer(), u"secret");
    ASSERT_EQ(key().unseal(sealed), u"secret");
    for (std::size_t index = 0; index < sealed.size(); ++index) {
        auto damaged = sealed;
        damaged[index] = static_cast<std::uint8_t>(damaged[index] ^ 0x10);
        EXPECT_NE(key().unseal(damaged), u"secret") << index;
    }
    forEachTruncation(
        sealed, [](const Bytes& cut, const std::string& what) { EXPECT_EQ(key().unseal(cut), std::nullopt) << what; });
    EXPECT_EQ(key().unseal(sealed + Bytes{0}), std::nullopt);
    EXPECT_EQ(key().unseal(Bytes(256, 0xFF)), std::nullopt);
    EXPECT_EQ(key().unseal(Bytes(256, 0)), std::nullopt);
}

TEST(PublicKey, damageAnywhereSealsForNobodyOrNothingAtAll) {
    client::initCrypto();
    const auto der = key().publicDer();
    testing::internal::CaptureStdout(); // sealing prints something
    forEachFlippedBit(der, [](const Bytes& bytes, const std::string& what) {
        EXPECT_LE(client::encryptCredential(std::string(bytes.begin(), bytes.end()), u"secret").size(), 2048U) << what;
    });
    forEachTruncation(der, [](const Bytes& bytes, const std::string& what) {
        EXPECT_TRUE(client::encryptCredential(std::string(bytes.begin(), bytes.end()), u"secret").empty()) << what;
    });
    EXPECT_FALSE(testing::internal::GetCapturedStdout().empty());
}

class FetchKey : public testing::Test {
protected:
    // What the console gets from these bytes as the answer to its request for the key: the key, or nothing.
    static std::optional<std::string> fetch(const Bytes& answer) {
        support::ScriptedServer server([&](support::ScriptedServer::Connection& connection) {
            connection.expectFrame();
            connection.send(answer);
            connection.endSending();
            connection.untilClosed();
        });
        client::CQVXAdminClass client(std::make_shared<client::CQVXAdminClassProperties>());
        std::string fetched;
        const bool failed = client.fetchPublicKey(fetched, "127.0.0.1", server.port());
        EXPECT_EQ(server.finish(), "");
        return failed ? std::nullopt : std::optional(fetched);
    }

    const Bytes frame_ = support::frame({support::dataMessage(str8("RSA") + u32(270))});
    const Bytes key_ = Bytes(40, 0x30);
};

TEST_F(FetchKey, anAnswerThatIsCutAnywhereIsAFailure) {
    ASSERT_EQ(fetch(frame_ + block(key_)), std::string(40, '0'));
    forEachTruncation(frame_ + block(key_), [](const Bytes& bytes, const std::string& what) {
        EXPECT_EQ(fetch(bytes), std::nullopt) << what;
    });
}

TEST_F(FetchKey, aDamagedFrameBeforeTheKeyIsAFailure) {
    forEachFlippedBit(frame_, [&](const Bytes& bytes, const std::string& what) {
        EXPECT_EQ(fetch(bytes + block(key_)), std::nullopt) << what;
    });
}

// A block has no checksum: a length that is too small yields the beginning of the key, one that is too large a failure.
TEST_F(FetchKey, aDamagedLengthGivesTheBeginningOfTheKeyOrAFailure) {
    forEachFlippedBit(u32(40), [&](const Bytes& length, const std::string& what) {
        const auto fetched = fetch(frame_ + length + key_);
        EXPECT_TRUE(!fetched || std::string(40, '0').starts_with(*fetched)) << what;
    });
}

} // namespace
} // namespace adversity
