#include "tests/support/ScriptedServer.h"
#include "tests/wire/FaultySocket.h"
#include "tests/wire/ManualClock.h"
#include "tests/wire/OpenConnection.h"
#include "wire/CTrans.h"
#include "wire/Cancelled.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>

using namespace std::chrono_literals;
using support::ScriptedServer;
using trans::CTrans;

namespace {

// Reads eight bytes from a server that sends only two, with the clock moved to the given times since the first wait,
// one after the other: the result and how many of the times were used.
struct TimedRead {
    int result = 0;
    std::uint32_t received = 0;
    std::size_t times = 0;
};

TimedRead readFor(std::int32_t timeoutSeconds, const std::vector<std::chrono::milliseconds>& times) {
    ScriptedServer server([](auto& connection) {
        connection.send({1, 2});
        connection.stall();
    });
    ManualClock clock;
    const auto start = clock.time;
    TimedRead read;
    CallbackObserver observer([&](auto, auto) {
        clock.time = start + times.at(read.times++);
        return true;
    });
    CTrans connection(wire::platformSocket(), clock);
    open(connection, server);
    connection.setWaitObserver(&observer);
    std::array<std::uint8_t, 8> buffer{};
    read.result = connection.iGetData(buffer.data(), buffer.size(), timeoutSeconds, &read.received);
    return read;
}

} // namespace

TEST(CTransReading, withoutAConnectionReadingThrows) {
    CTrans connection;
    std::uint8_t byte = 0;
    try {
        connection.iGetData(&byte, 1, 1, nullptr);
        FAIL() << "nothing thrown";
    } catch (const char* text) {
        EXPECT_STREQ(text, "iGetData(): Socket operation on invalid socket");
    }
}

TEST(CTransReading, withoutAConnectionAnExactReadThrows) {
    CTrans connection;
    std::uint8_t byte = 0;
    EXPECT_THROW(connection.readExact(&byte, 1), const char*);
}

TEST(CTransReading, theDefaultsAre500SecondsAndChunksOf10000) {
    const CTrans connection;
    EXPECT_EQ(connection.readTimeout(), 500);
    EXPECT_EQ(connection.chunkSize(), 10000);
}

TEST(CTransReading, aReadGivesWhatWasAskedForAndLeavesTheRest) {
    ScriptedServer server([](auto& connection) { connection.send({1, 2, 3}); });
    CTrans connection;
    open(connection, server);
    std::array<std::uint8_t, 2> buffer{};
    std::uint32_t received = 0;
    EXPECT_EQ(connection.iGetData(buffer.data(), 2, 10, &received), 2);
    EXPECT_EQ(received, 2u);
    EXPECT_EQ(buffer, (std::array<std::uint8_t, 2>{1, 2}));
    EXPECT_EQ(connection.readExact(buffer.data(), 1), 1);
    EXPECT_EQ(buffer[0], 3);
}

TEST(CTransReading, aReadOfNothingGivesNothingAtOnce) {
    ScriptedServer server([](auto& connection) { connection.stall(); });
    CTrans connection;
    open(connection, server);
    EXPECT_EQ(connection.iGetData(nullptr, 0, 10, nullptr), 0);
    EXPECT_EQ(connection.readExact(nullptr, 0), 0);
}

TEST(CTransReading, aPeerThatClosesEndsTheReadWithWhatCame) {
    ScriptedServer server([](auto& connection) { connection.send({1, 2}); });
    CTrans connection;
    open(connection, server);
    std::array<std::uint8_t, 8> buffer{};
    std::uint32_t received = 99;
    EXPECT_EQ(connection.iGetData(buffer.data(), 8, 10, &received), 2);
    EXPECT_EQ(received, 2u);
    EXPECT_EQ(connection.iGetData(buffer.data(), 8, 10, &received), 0);
    EXPECT_EQ(received, 0u);
}

TEST(CTransReading, theCountOfAReadWrapsAt65536) {
    ScriptedServer server([](auto& connection) {
        connection.send(support::Bytes(65539, 7));
        connection.endSending();
        connection.untilClosed();
    });
    CTrans connection;
    open(connection, server);
    support::Bytes buffer(65539);
    std::uint32_t received = 99;
    EXPECT_EQ(connection.iGetData(buffer.data(), 65539, 10, &received), 3);
    EXPECT_EQ(received, 3u);
}

TEST(CTransReading, anExactReadThatFallsShortIsAFailure) {
    ScriptedServer server([](auto& connection) { connection.send({1, 2}); });
    CTrans connection;
    open(connection, server);
    std::array<std::uint8_t, 8> buffer{};
    EXPECT_EQ(connection.readExact(buffer.data(), 8), -1);
}

TEST(CTransReading, aResetEndsTheReadWithWhatCame) {
    ScriptedServer server([](auto& connection) { connection.stall(); });
    FaultySocket socket;
    CTrans connection(socket, wire::steadyClock());
    open(connection, server);
    socket.received = wire::SocketResult{.value = -1, .error = 104, .fault = wire::SocketFault::reset};
    std::uint8_t byte = 0;
    std::uint32_t received = 99;
    EXPECT_EQ(connection.iGetData(&byte, 1, 10, &received), 0);
    EXPECT_EQ(received, 0u);
}

TEST(CTransReading, anyOtherSocketErrorIsAFailureWithNothingReceived) {
    ScriptedServer server([](auto& connection) { connection.stall(); });
    FaultySocket socket;
    CTrans connection(socket, wire::steadyClock());
    open(connection, server);
    socket.received = FaultySocket::failure;
    std::uint8_t byte = 0;
    std::uint32_t received = 99;
    EXPECT_EQ(connection.iGetData(&byte, 1, 10, &received), -1);
    EXPECT_EQ(received, 0u);
}

TEST(CTransReading, aTimeOutIsUpWhenTheWholeSecondIsLaterThanTheFirstOnePlusTheTimeOut) {
    // The first wait begins half a second into its second, so that 15 seconds last 15.5.
    const TimedRead read = readFor(15, {10s, 15s, 15499ms, 15500ms});
    EXPECT_EQ(read.result, -2);
    EXPECT_EQ(read.received, 2u);
    EXPECT_EQ(read.times, 4u);
}

TEST(CTransReading, aNegativeTimeOutMeans500Seconds) {
    const TimedRead read = readFor(-1, {100s, 500499ms, 500500ms});
    EXPECT_EQ(read.result, -2);
    EXPECT_EQ(read.times, 3u);
}

TEST(CTransReading, aTimeOutOfZeroWaitsForEver) {
    ManualClock clock;
    CallbackObserver observer([&](auto, auto) {
        clock.time += 1000h;
        return observer.calls < 3;
    });
    ScriptedServer server([](auto& connection) { connection.stall(); });
    CTrans connection(wire::platformSocket(), clock);
    open(connection, server);
    connection.setWaitObserver(&observer);
    std::uint8_t byte = 0;
    EXPECT_THROW(connection.iGetData(&byte, 1, 0, nullptr), wire::Cancelled);
    EXPECT_EQ(observer.calls, 3);
}

TEST(CTransReading, theHeaderOfAFrameIsWaitedForFor15Seconds) {
    ManualClock clock;
    const auto start = clock.time;
    std::vector<std::chrono::milliseconds> times{15499ms, 15500ms};
    std::size_t next = 0;
    CallbackObserver observer([&](auto, auto) {
        clock.time = start + times.at(next++);
        return true;
    });
    ScriptedServer server([](auto& connection) { connection.stall(); });
    CTrans connection(wire::platformSocket(), clock);
    open(connection, server);
    connection.setWaitObserver(&observer);
    EXPECT_FALSE(connection.getMessages({}, nullptr));
    EXPECT_EQ(next, 2u);
}

TEST(CTransReading, whatArrivesTooLateIsATimeOutThoughItIsAllThere) {
    ScriptedServer server([](auto& connection) { connection.stall(); });
    ManualClock clock;
    FaultySocket socket;
    CTrans connection(socket, clock);
    open(connection, server);
    socket.arrivals = {{7}};
    socket.onReceive = [&] { clock.time += 16s; };
    std::uint8_t byte = 0;
    std::uint32_t received = 0;
    EXPECT_EQ(connection.iGetData(&byte, 1, 15, &received), -2);
    EXPECT_EQ(received, 1u);
}

TEST(CTransReading, whatHasBeenReadAheadTakesNoTime) {
    ScriptedServer server([](auto& connection) { connection.stall(); });
    ManualClock clock;
    FaultySocket socket;
    CTrans connection(socket, clock);
    open(connection, server);
    socket.arrivals = {{7, 8}};
    std::uint8_t byte = 0;
    EXPECT_EQ(connection.iGetData(&byte, 1, 15, nullptr), 1);
    clock.time += 1h;
    EXPECT_EQ(connection.iGetData(&byte, 1, 15, nullptr), 1);
    EXPECT_EQ(byte, 8);
    EXPECT_EQ(connection.counts().receiveCalls, 1u);
}

TEST(CTransReading, theObserverHearsTheElapsedTimeAndTheRecords) {
    ManualClock clock;
    ScriptedServer server([](auto& connection) { connection.stall(); });
    CTrans connection(wire::platformSocket(), clock);
    open(connection, server);
    clock.time += 1234ms;
    std::optional<std::chrono::milliseconds> heardElapsed;
    std::uint32_t heardRecords = 0;
    CallbackObserver observer([&](std::chrono::milliseconds elapsed, std::uint32_t records) {
        heardElapsed = elapsed;
        heardRecords = records;
        return false;
    });
    connection.setWaitObserver(&observer);
    connection.noteRecords(17);
    EXPECT_THROW(static_cast<void>(connection.getMessages({}, nullptr)), wire::Cancelled);
    EXPECT_EQ(heardElapsed, 1234ms);
    EXPECT_EQ(heardRecords, 17u);
}

TEST(CTransReading, theObserverIsAskedWhileBytesFlowToo) {
    ManualClock clock;
    ScriptedServer server([](auto& connection) {
        connection.send(support::Bytes(1 << 20, 7));
        connection.stall();
    });
    CTrans connection(wire::platformSocket(), clock);
    open(connection, server);
    CallbackObserver observer([](auto, auto) { return true; });
    connection.setWaitObserver(&observer);
    std::vector<std::uint8_t> buffer(1024);
    for (int index = 0; index < 1024; ++index) {
        clock.time += 1ms;
        ASSERT_EQ(connection.iGetData(buffer.data(), 1024, 10, nullptr), 1024);
    }
    EXPECT_GE(observer.calls, 5);
}
