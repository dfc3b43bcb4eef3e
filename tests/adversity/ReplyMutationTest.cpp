#include "tests/adversity/Mutations.h"
#include "tests/adversity/ReplyReader.h"
#include "tests/adversity/SampleMessages.h"

#include <gtest/gtest.h>

namespace adversity {
namespace {

using namespace std::chrono_literals;

// The wait for a header and then for a body, each noticed within a second; a list has one more of each.
constexpr std::chrono::seconds longestWait = 2 * (15s + 500s + 2s);

ReadOutcome read(const SampleReply& reply, const Bytes& bytes, Ending ending = Ending::close) {
    MemoryPeer peer(bytes, ending);
    auto outcome = readReply(*reply.command, *reply.layout, peer);
    EXPECT_LE(peer.waited(), longestWait) << reply.name();
    return outcome;
}

void expectWithinContract(const SampleReply& reply, const ReadOutcome& outcome, const std::string& what) {
    EXPECT_EQ(outcome.breach, "") << reply.name() << ": " << what;
}

TEST(ReplyMutation, everySampleIsReadWhole) {
    for (const auto& reply : sampleReplies()) {
        const auto outcome = read(reply, reply.frames());
        EXPECT_TRUE(outcome.whole) << reply.name() << ": " << outcome.failure << outcome.breach;
    }
}

TEST(ReplyMutation, everySampleIsReadAlikeByteForByte) {
    for (const auto& reply : sampleReplies()) {
        MemoryPeer peer(reply.frames(), Ending::close, 1);
        const auto outcome = readReply(*reply.command, *reply.layout, peer);
        EXPECT_TRUE(outcome.whole) << reply.name();
        EXPECT_EQ(outcome.read, read(reply, reply.frames()).read) << reply.name();
    }
}

// The checksum adds up bytes: a single different byte never goes unnoticed where it matters.
TEST(ReplyMutation, aByteThatDiffersEndsInAFailureOrGivesWhatWasSent) {
    for (const auto& reply : sampleReplies()) {
        const auto sent = read(reply, reply.frames()).read;
        const auto expectNoticed = [&](const Bytes& mutated, const std::string& what) {
            const auto outcome = read(reply, mutated);
            expectWithinContract(reply, outcome, what);
            if (outcome.whole) {
                EXPECT_EQ(outcome.read, sent) << reply.name() << ": " << what;
            }
        };
        forEachFlippedBit(reply.frames(), expectNoticed);
        forEachReplacedByte(reply.frames(), expectNoticed);
    }
}

TEST(ReplyMutation, aStreamWithoutItsBeginningStaysWithinTheContract) {
    for (const auto& reply : sampleReplies()) {
        forEachMissingBeginning(reply.frames(), [&](const Bytes& mutated, const std::string& what) {
            expectWithinContract(reply, read(reply, mutated), what);
        });
    }
}

// Bytes that did not arrive count as zeros: only a missing end of nothing but zeros goes unnoticed.
TEST(ReplyMutation, aStreamThatIsCutEndsInAFailureOrGivesWhatWasSent) {
    for (const auto& reply : sampleReplies()) {
        const auto sent = read(reply, reply.frames()).read;
        forEachTruncation(reply.frames(), [&](const Bytes& cut, const std::string& what) {
            for (const Ending ending : {Ending::close, Ending::reset, Ending::stall}) {
                const auto outcome = read(reply, cut, ending);
                expectWithinContract(reply, outcome, what);
                if (outcome.whole) {
                    EXPECT_EQ(outcome.read, sent) << reply.name() << ": " << what;
                }
            }
        });
    }
}

// What a server gone mad sends, in valid frames.
TEST(ReplyMutation, damageInsideOfASoundFrameStaysWithinTheContract) {
    for (const auto& reply : sampleReplies()) {
        for (std::size_t index = 0; index < reply.messages.size(); ++index) {
            forEachMutation(reply.messages[index], [&](const Bytes& mutated, const std::string& what) {
                auto damaged = reply;
                damaged.messages[index] = mutated;
                expectWithinContract(reply, read(damaged, damaged.frames()),
                                     "message " + std::to_string(index) + ", " + what);
            });
        }
    }
}

TEST(ReplyMutation, everyCountOfAListStaysWithinTheContract) {
    for (const auto& reply : sampleReplies()) {
        if (reply.messages.size() < 2) {
            continue;
        }
        for (const auto* count : {"00 00", "01 00", "02 00", "04 00", "00 01", "FF 7F", "00 80", "FF FF"}) {
            auto damaged = reply;
            damaged.messages[0] = support::dataMessage(support::hex(count));
            expectWithinContract(reply, read(damaged, damaged.frames()), std::string("a count of ") + count);
        }
    }
}

// Two changes that cancel out leave the checksum right.
TEST(ReplyMutation, damageThatTheChecksumMissesStaysWithinTheContract) {
    for (const auto& reply : sampleReplies()) {
        const auto sound = reply.frames();
        for (std::size_t first = 0; first < sound.size(); ++first) {
            for (const std::size_t distance : std::initializer_list<std::size_t>{1, 2, 3, 7}) {
                if (first + distance >= sound.size()) {
                    continue;
                }
                auto mutated = sound;
                ++mutated[first];
                --mutated[first + distance];
                expectWithinContract(reply, read(reply, mutated),
                                     "bytes " + std::to_string(first) + " and " + std::to_string(first + distance));
            }
        }
    }
}

} // namespace
} // namespace adversity
