#include "tests/support/ScriptedServer.h"
#include "tests/wire/FaultySocket.h"
#include "tests/wire/LogRecorder.h"
#include "tests/wire/ManualClock.h"
#include "tests/wire/OpenConnection.h"
#include "wire/CTrans.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using support::Bytes;
using support::dataMessage;
using support::frame;
using support::hex;
using support::ScriptedServer;
using support::toHex;
using trans::CTrans;
using wire::Message;
using wire::MessageKind;

namespace {

using Lines = std::vector<std::string>;

constexpr std::string_view rejectBytes = "51 56 58 20 2D 20 55 6E 6B 6E 6F 77 6E 20 43 6F 6D 6D 61 6E 64 00";

std::unique_ptr<Message> dataWith(std::initializer_list<std::uint8_t> bytes) {
    auto message = std::make_unique<Message>();
    message->beginMessage(static_cast<std::uint32_t>(bytes.size()));
    for (const std::uint8_t byte : bytes) {
        message->putByte(byte);
    }
    message->setKind(MessageKind::Data);
    message->rewind();
    return message;
}

// One call of getMessages against a server that sends something and closes: its result, what was logged, what the
// server received, and the kinds of the messages in the queue afterwards, front first.
struct Outcome {
    bool result = false;
    Lines log;
    std::vector<std::string> messages;
};

Outcome outcomeOf(const Bytes& sent) {
    ScriptedServer server([&](auto& connection) {
        connection.send(sent);
        connection.close();
    });
    Outcome outcome;
    CTrans connection;
    open(connection, server);
    LogRecorder log;
    outcome.result = connection.getMessages(log.logger(), "here");
    outcome.log = log.texts;
    while (const auto message = connection.getMessage(MessageKind::Data)) {
        outcome.messages.push_back(toHex({message->bytes().begin(), message->bytes().end()}));
    }
    return outcome;
}

// The answer to a server that sends something and then ends only its own side.
std::string answerTo(const Bytes& sent) {
    ScriptedServer server([&](auto& connection) {
        connection.send(sent);
        connection.endSending();
        connection.untilClosed();
    });
    CTrans connection;
    open(connection, server);
    EXPECT_FALSE(connection.getMessages({}, nullptr));
    connection.disconnect(0);
    EXPECT_EQ(server.finish(), "");
    return toHex(server.received());
}

Bytes bodyOf(std::size_t length) {
    Bytes fields(length - 5);
    for (std::size_t index = 0; index < fields.size(); ++index) {
        fields[index] = static_cast<std::uint8_t>(1 + index % 251);
    }
    return dataMessage(fields);
}

} // namespace

TEST(CTransFrames, aCommandAndThenADataMessageGoOutInTheOppositeOrder) {
    ScriptedServer server([](auto& connection) { connection.expectFrame(); });
    CTrans connection;
    open(connection, server);
    connection.addMessage(wire::makeCommandMessage(22, 1));
    connection.addMessage(dataWith({1, 2}));
    EXPECT_TRUE(connection.sendMessages({}));
    EXPECT_EQ(server.finish(), "");
    EXPECT_EQ(toHex(server.received()), "02 10 00 00 00 2B 00 00 00 "
                                        "01 07 00 00 00 01 02 "
                                        "00 09 00 00 00 01 00 16 00");
    EXPECT_EQ(connection.lastChecksum(), 0x2Bu);
    EXPECT_EQ(connection.getMessage(MessageKind::Data), nullptr);
}

TEST(CTransFrames, aFrameGoesOutInOneCall) {
    ScriptedServer server([](auto& connection) { connection.expectFrame(); });
    CTrans connection;
    open(connection, server);
    connection.addMessage(wire::makeCommandMessage(22, 1));
    connection.addMessage(dataWith({1, 2}));
    EXPECT_TRUE(connection.sendMessages({}));
    EXPECT_EQ(connection.counts().sendCalls, 1u);
    EXPECT_EQ(connection.counts().bytesSent, 25u);
}

TEST(CTransFrames, anEmptyQueueSendsCountSizeAndChecksumZeroAndAnEmptyBody) {
    ScriptedServer server([](auto& connection) { connection.untilClosed(); });
    CTrans connection;
    open(connection, server);
    EXPECT_TRUE(connection.sendMessages({}));
    connection.disconnect(0);
    EXPECT_EQ(server.finish(), "");
    EXPECT_EQ(toHex(server.received()), "00 00 00 00 00 00 00 00 00");
}

TEST(CTransFrames, theCountIsTheLow8BitsOfTheQueueLength) {
    ScriptedServer server([](auto& connection) { connection.expectFrame(); });
    CTrans connection;
    open(connection, server);
    for (int index = 0; index < 257; ++index) {
        connection.addMessage(dataWith({}));
    }
    EXPECT_TRUE(connection.sendMessages({}));
    EXPECT_EQ(server.finish(), "");
    const Bytes received = server.received();
    EXPECT_EQ(toHex({received.begin(), received.begin() + 9}), "01 05 05 00 00 06 06 00 00");
}

TEST(CTransFrames, aMessageMayBeAddedBeforeConnecting) {
    ScriptedServer server([](auto& connection) { connection.expectFrame(); });
    CTrans connection;
    connection.addMessage(wire::makeCommandMessage(78, 1));
    open(connection, server);
    EXPECT_TRUE(connection.sendMessages({}));
    EXPECT_EQ(server.finish(), "");
    EXPECT_EQ(toHex(server.received()), "01 09 00 00 00 58 00 00 00 00 09 00 00 00 01 00 4E 00");
}

TEST(CTransFrames, aMessageThatIsNotRewoundIsRefusedBeforeTheQueueIsTouched) {
    CTrans connection;
    connection.addMessage(dataWith({7}));
    auto unfinished = std::make_unique<Message>();
    unfinished->beginMessage(0);
    try {
        connection.addMessage(std::move(unfinished));
        FAIL() << "nothing thrown";
    } catch (const char* text) {
        EXPECT_STREQ(text, "Attempting to store a non rewinded message");
    }
    EXPECT_NE(connection.getMessage(MessageKind::Data), nullptr);
    EXPECT_EQ(connection.getMessage(MessageKind::Data), nullptr);
}

TEST(CTransFrames, aSendFailureDoesNotMakeSendMessagesFalseButIsReportedForEachPiece) {
    ScriptedServer server([](auto& connection) { connection.stall(); });
    FaultySocket socket;
    CTrans connection(socket, wire::steadyClock());
    open(connection, server);
    socket.sent = FaultySocket::failure;
    LogRecorder log;
    EXPECT_TRUE(connection.sendMessages(log.logger()));
    EXPECT_EQ(log.lines, (Lines{"CTrans::sendMessages send message count failed | 77 | 2",
                                "CTrans::sendMessages send message size failed | 77 | 2",
                                "CTrans::sendMessages send message checksum failed | 77 | 2",
                                "CTrans::sendMessages send message data failed | 77 | 2"}));
}

TEST(CTransFrames, sendingToAPeerThatIsGoneEndsWithoutASignal) {
    ScriptedServer server([](auto& connection) {
        connection.expect(9); // otherwise the reset might arrive before the connection is established
        connection.reset();
    });
    CTrans connection;
    open(connection, server);
    EXPECT_TRUE(connection.sendMessages({}));
    EXPECT_EQ(server.finish(), "");
    EXPECT_TRUE(connection.sendMessages({}));
    EXPECT_TRUE(connection.sendMessages({}));
}

TEST(CTransFrames, withoutAConnectionSendingIsFalseAndEmptiesTheQueue) {
    CTrans connection;
    connection.addMessage(dataWith({7}));
    LogRecorder log;
    EXPECT_FALSE(connection.sendMessages(log.logger()));
    EXPECT_EQ(log.texts.size(), 4u);
    EXPECT_EQ(connection.getMessage(MessageKind::Data), nullptr);
}

TEST(CTransFrames, withoutAConnectionReceivingIsFalseAndLeavesTheQueue) {
    CTrans connection;
    connection.addMessage(dataWith({7}));
    EXPECT_FALSE(connection.getMessages({}, nullptr));
    EXPECT_NE(connection.getMessage(MessageKind::Data), nullptr);
}

TEST(CTransFrames, twoMessagesOfOneKindComeOutLastInTheFrameFirst) {
    const Outcome outcome = outcomeOf(frame({dataMessage({1}), dataMessage({2, 3})}));
    EXPECT_TRUE(outcome.result);
    EXPECT_EQ(outcome.messages, (Lines{"01 07 00 00 00 02 03", "01 06 00 00 00 01"}));
    EXPECT_EQ(outcome.log, Lines{});
}

TEST(CTransFrames, aKindThatIsNotQueuedGivesNothingAndLeavesTheRest) {
    CTrans connection;
    connection.addMessage(wire::makeCommandMessage(5, 1));
    EXPECT_EQ(connection.getMessage(MessageKind::Data), nullptr);
    EXPECT_EQ(connection.getMessage(static_cast<MessageKind>(9)), nullptr);
    EXPECT_NE(connection.getMessage(MessageKind::Command), nullptr);
}

TEST(CTransFrames, receivingReplacesWhatStoodInTheQueue) {
    ScriptedServer server([](auto& connection) { connection.send(frame({dataMessage({1})})); });
    CTrans connection;
    open(connection, server);
    connection.addMessage(dataWith({7}));
    EXPECT_TRUE(connection.getMessages({}, nullptr));
    EXPECT_EQ(connection.getMessage(MessageKind::Data)->getByte(), 1);
    EXPECT_EQ(connection.getMessage(MessageKind::Data), nullptr);
}

TEST(CTransFrames, aFrameOfNothingIsTrueWithAnEmptyQueue) {
    const Outcome outcome = outcomeOf(hex("00 00 00 00 00 00 00 00 00"));
    EXPECT_TRUE(outcome.result);
    EXPECT_EQ(outcome.messages, Lines{});
}

TEST(CTransFrames, aFrameThatComesByteByByteIsPutTogether) {
    ScriptedServer server([](auto& connection) { connection.drip(frame({dataMessage({1, 2, 3})})); });
    CTrans connection;
    open(connection, server);
    EXPECT_TRUE(connection.getMessages({}, nullptr));
    EXPECT_EQ(connection.getMessage(MessageKind::Data)->size(), 8u);
}

TEST(CTransFrames, aServerThatClosesWithoutAnsweringIsRejected) {
    const Outcome outcome = outcomeOf({});
    EXPECT_FALSE(outcome.result);
    EXPECT_EQ(outcome.log, Lines{"here CTrans::getMessages get message count failed"});
    EXPECT_EQ(answerTo({}), rejectBytes);
}

TEST(CTransFrames, anErrorWhileRejectingIsIgnored) {
    ScriptedServer server([](auto& connection) {
        connection.expect(9); // otherwise the reset might arrive before the connection is established
        connection.reset();
    });
    CTrans connection;
    open(connection, server);
    connection.sendMessages({});
    EXPECT_EQ(server.finish(), "");
    EXPECT_FALSE(connection.getMessages({}, nullptr));
    EXPECT_FALSE(connection.getMessages({}, nullptr));
}

TEST(CTransFrames, aHeaderThatBreaksOffInTheSizeIsRejected) {
    EXPECT_EQ(outcomeOf(hex("01 05 00")).log, Lines{"here CTrans::getMessages get message len failed"});
    EXPECT_EQ(answerTo(hex("01 05 00")), rejectBytes);
}

TEST(CTransFrames, aHeaderThatBreaksOffInTheChecksumIsRejected) {
    EXPECT_EQ(outcomeOf(hex("01 05 00 00 00 06")).log, Lines{"here CTrans::getMessages get checksum failed"});
    EXPECT_EQ(answerTo(hex("01 05 00 00 00 06")), rejectBytes);
}

TEST(CTransFrames, aSizeOf128001IsRejected) {
    const Bytes header = hex("01 01 F4 01 00 00 00 00 00");
    EXPECT_EQ(outcomeOf(header).log, Lines{"here CTrans::getMessages raw_total_data_len > QVX_MAX_MESSAGE_SIZE"});
    EXPECT_EQ(answerTo(header), rejectBytes);
}

TEST(CTransFrames, aSizeOf128000PassesTheTest) {
    const Bytes start = hex("01 00 F4 01 00 05 00 00 00 41");
    EXPECT_EQ(outcomeOf(start).log,
              (Lines{"here CTrans::getMessages get raw data failed", "here CTrans::getMessages checksum error"}));
    EXPECT_EQ(answerTo(start), "");
}

TEST(CTransFrames, aWrongChecksumYieldsNoMessagesAndNoReject) {
    const Bytes wrong = frame({dataMessage({1})}, 99);
    const Outcome outcome = outcomeOf(wrong);
    EXPECT_FALSE(outcome.result);
    EXPECT_EQ(outcome.messages, Lines{});
    EXPECT_EQ(outcome.log, Lines{"here CTrans::getMessages checksum error"});
    EXPECT_EQ(answerTo(wrong), "");
}

TEST(CTransFrames, aBodyThatBreaksOffFailsItsChecksum) {
    Bytes cut = frame({dataMessage({1, 2, 3})});
    cut.pop_back();
    EXPECT_EQ(outcomeOf(cut).log,
              (Lines{"here CTrans::getMessages get raw data failed", "here CTrans::getMessages checksum error"}));
    EXPECT_EQ(answerTo(cut), "");
}

TEST(CTransFrames, aBodyOf32768BytesArrivesWhole) {
    const Outcome outcome = outcomeOf(frame({bodyOf(32768)}));
    EXPECT_TRUE(outcome.result);
    ASSERT_EQ(outcome.messages.size(), 1u);
    EXPECT_TRUE(outcome.messages[0] == toHex(bodyOf(32768)));
}

TEST(CTransFrames, aBodyOf65535BytesArrivesWhole) {
    const Outcome outcome = outcomeOf(frame({bodyOf(65535)}));
    EXPECT_TRUE(outcome.result);
    ASSERT_EQ(outcome.messages.size(), 1u);
    EXPECT_TRUE(outcome.messages[0] == toHex(bodyOf(65535)));
}

TEST(CTransFrames, aBodyAbove65535BytesFailsItsChecksumThoughItsSizeIsAllowed) {
    for (const std::size_t length : {65536U, 65537U, 100000U, 128000U}) {
        const Outcome outcome = outcomeOf(frame({bodyOf(length)}));
        EXPECT_FALSE(outcome.result) << length;
        EXPECT_TRUE(outcome.messages.empty()) << length;
        EXPECT_EQ(outcome.log.back(), "here CTrans::getMessages checksum error");
    }
}

TEST(CTransFrames, aCountThatPromisesMoreThanTheBodyHoldsIsThrown) {
    Bytes lying = frame({dataMessage({1})});
    lying[0] = 2;
    try {
        static_cast<void>(outcomeOf(lying));
        FAIL() << "nothing thrown";
    } catch (const char* text) {
        EXPECT_STREQ(text, "Reading out of scope");
    }
}

TEST(CTransFrames, aCountWithoutABodyIsThrown) {
    try {
        static_cast<void>(outcomeOf(hex("01 00 00 00 00 00 00 00 00")));
        FAIL() << "nothing thrown";
    } catch (const char* text) {
        EXPECT_STREQ(text, "Reading out of scope");
    }
}

TEST(CTransFrames, withoutAPrefixNothingIsLogged) {
    ScriptedServer server([](auto&) {});
    CTrans connection;
    open(connection, server);
    LogRecorder log;
    EXPECT_FALSE(connection.getMessages(log.logger(), nullptr));
    EXPECT_EQ(log.lines, Lines{});
}

TEST(CTransFrames, readsThatLastedTwoSecondsAreReported) {
    ScriptedServer server([](auto& connection) { connection.stall(); });
    ManualClock clock;
    FaultySocket socket;
    CTrans connection(socket, clock);
    open(connection, server);
    socket.onReceive = [&] { clock.time += 2s; };
    socket.arrivals = {hex("01"), hex("06 00 00 00"), hex("08 00 00 00"), hex("01 06 00 00 00 01")};
    LogRecorder log;
    EXPECT_TRUE(connection.getMessages(log.logger(), "here"));
    EXPECT_EQ(log.lines, (Lines{"here CTrans::getMessages get message count lasted 2 seconds | 0 | 2",
                                "here CTrans::getMessages get message len lasted 2 seconds | 0 | 2",
                                "here CTrans::getMessages get message checksum lasted 2 seconds | 0 | 2",
                                "here CTrans::getMessages get raw data lasted 2 seconds | 0 | 2"}));
}

TEST(CTransFrames, readsThatLastedLessThanTwoSecondsAreNotReported) {
    ScriptedServer server([](auto& connection) { connection.stall(); });
    ManualClock clock;
    FaultySocket socket;
    CTrans connection(socket, clock);
    open(connection, server);
    socket.onReceive = [&] { clock.time += 1999ms; };
    socket.arrivals = {hex("01"), hex("06 00 00 00"), hex("08 00 00 00"), hex("01 06 00 00 00 01")};
    LogRecorder log;
    EXPECT_TRUE(connection.getMessages(log.logger(), "here"));
    EXPECT_EQ(log.lines, Lines{});
}

TEST(CTransFrames, aMessageThatIsHandedBackBecomesTheNextOne) {
    ScriptedServer server([](auto& connection) {
        connection.send(hex("01  07 00 00 00  0B 00 00 00  01 07 00 00 00 01 02"));
        connection.send(hex("02  0C 00 00 00  0D 00 00 00  01 05 00 00 00  00 07 00 00 00 00 00"));
        connection.stall();
    });
    CTrans connection;
    open(connection, server);
    ASSERT_TRUE(connection.getMessages({}, nullptr));
    auto message = connection.getMessage(MessageKind::Data);
    ASSERT_NE(message, nullptr);
    const Message* const first = message.get();
    connection.reuse(std::move(message));
    ASSERT_TRUE(connection.getMessages({}, nullptr));
    message = connection.getMessage(MessageKind::Data);
    ASSERT_EQ(message.get(), first);
    EXPECT_EQ(toHex({message->bytes().begin(), message->bytes().end()}), "01 05 00 00 00");
    EXPECT_EQ(message->remaining(), 0u);
    message = connection.getMessage(MessageKind::Command);
    ASSERT_NE(message, nullptr);
    EXPECT_EQ(toHex({message->bytes().begin(), message->bytes().end()}), "00 07 00 00 00 00 00");
}

TEST(CTransFrames, manyFramesAreReadAheadInAFewCalls) {
    constexpr int frames = 2000;
    Bytes all;
    const Bytes one = frame({bodyOf(341)});
    for (int index = 0; index < frames; ++index) {
        all.insert(all.end(), one.begin(), one.end());
    }
    ScriptedServer server([&](auto& connection) {
        connection.send(all);
        connection.stall();
    });
    CTrans connection;
    open(connection, server);
    for (int index = 0; index < frames; ++index) {
        ASSERT_TRUE(connection.getMessages({}, nullptr));
        ASSERT_NE(connection.getMessage(MessageKind::Data), nullptr);
    }
    EXPECT_EQ(connection.counts().bytesReceived, all.size());
    EXPECT_LT(connection.counts().receiveCalls, static_cast<std::uint64_t>(frames) / 20);
}
