#include "tests/adversity/Mutations.h"
#include "tests/server/support/RunningServer.h"
#include "tests/server/support/TestClient.h"

#include <gtest/gtest.h>

// Damaged frames on real connections to a real server.
namespace adversity {
namespace {

using namespace server::test; // the words of requests
using support::toHex;

class FrameMutation : public testing::Test {
protected:
    FrameMutation() { server_.start(); }

    Bytes answerTo(const Bytes& bytes) {
        TestClient client(server_.port());
        client.trySend(bytes);
        client.closeSending();
        return client.receiveAll();
    }

    static constexpr std::uint32_t nothing = 999;

    // How many regions the server lists; `nothing` when it does not answer.
    [[nodiscard]] std::uint32_t regions() {
        const auto messages = messagesOf(answerTo(request(0, u8(0) + u32(0) + u16(0))));
        return messages.empty() ? nothing : FieldCursor(messages.front()).number(2);
    }

    RunningServer server_;
};

TEST_F(FrameMutation, aDamagedChangeIsDroppedWithoutAnAnswerAndNotMade) {
    forEachMutation(request(1, u8(0) + u32(0) + str16(u"North")), [&](const Bytes& bytes, const std::string& what) {
        EXPECT_EQ(toHex(answerTo(bytes)), "") << what;
    });
    EXPECT_EQ(regions(), 0U);
}

TEST_F(FrameMutation, aDamagedQuestionIsDroppedWithoutAnAnswer) {
    forEachMutation(request(0, u8(0) + u32(0) + u16(0)), [&](const Bytes& bytes, const std::string& what) {
        EXPECT_EQ(toHex(answerTo(bytes)), "") << what;
    });
    forEachMutation(request(78, std::nullopt), [&](const Bytes& bytes, const std::string& what) {
        EXPECT_EQ(toHex(answerTo(bytes)), "") << what;
    });
    EXPECT_EQ(regions(), 0U);
}

// The checksum misses two changes that cancel out. The server may see a different command from the one sent, but it
// goes on.
TEST_F(FrameMutation, damageThatTheChecksumMissesLeavesTheServerAnswering) {
    const auto sound = request(1, u8(0) + u32(0) + str16(u"North"));
    for (std::size_t first = 9; first < sound.size(); ++first) {
        for (std::size_t second = 9; second < sound.size(); ++second) {
            auto bytes = sound;
            ++bytes[first];
            --bytes[second];
            for (const auto& message : messagesOf(answerTo(bytes))) {
                EXPECT_EQ(message.at(0), 1) << first << " and " << second;
            }
        }
    }
    EXPECT_NE(regions(), nothing);
}

} // namespace
} // namespace adversity
