#include "tests/support/LoopbackName.h"
#include "tests/support/ScriptedServer.h"
#include "tests/support/SilentListener.h"
#include "tests/wire/FaultySocket.h"
#include "tests/wire/LogRecorder.h"
#include "tests/wire/ManualClock.h"
#include "wire/CTrans.h"
#include "wire/Cancelled.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <cerrno>

using namespace std::chrono_literals;
using support::ScriptedServer;
using support::SilentListener;
using trans::CTrans;

namespace {

using Lines = std::vector<std::string>;

constexpr const char* loopback = "127.0.0.1";

// Tries to connect with a faulty socket, and returns what was logged.
Lines logOfFailure(FaultySocket& socket, const std::string& host = loopback) {
    ManualClock clock;
    LogRecorder log;
    ScriptedServer server([](auto& connection) { connection.stall(); });
    CTrans connection(socket, clock);
    connection.setHost(host);
    connection.setPort(server.port());
    EXPECT_FALSE(connection.connect(1, log.logger()));
    return log.lines;
}

// Connects to a port that never answers, advancing the clock by the given times at each wait, and returns the time
// after which the attempt was given up.
std::chrono::milliseconds waitOf(std::uint32_t timeoutSeconds, std::vector<std::chrono::milliseconds> times) {
    const SilentListener listener;
    ManualClock clock;
    const auto start = clock.time;
    std::size_t next = 0;
    CallbackObserver observer([&](auto, auto) {
        clock.time = start + times.at(next++);
        return true;
    });
    LogRecorder log;
    CTrans connection(wire::platformSocket(), clock);
    connection.setWaitObserver(&observer);
    connection.setHost(loopback);
    connection.setPort(listener.port());
    EXPECT_FALSE(connection.connect(timeoutSeconds, log.logger()));
    EXPECT_EQ(log.lines, Lines{"CTrans::iSocketConnect select timeout (127.0.0.1) | 0 | 2"});
    EXPECT_EQ(next, times.size());
    return std::chrono::duration_cast<std::chrono::milliseconds>(clock.time - start);
}

} // namespace

TEST(CTransConnect, aServerThatListensIsReached) {
    ScriptedServer server([](auto& connection) { connection.stall(); });
    CTrans connection;
    connection.setHost(loopback);
    connection.setPort(server.port());
    EXPECT_TRUE(connection.connect(10, {}));
    EXPECT_TRUE(connection.disconnect(0));
    EXPECT_EQ(server.finish(), "");
}

TEST(CTransConnect, aServerIsReachedByName) {
    ScriptedServer server([](auto& connection) { connection.stall(); });
    CTrans connection;
    connection.setHost(support::loopbackName);
    connection.setPort(server.port());
    EXPECT_TRUE(connection.connect(10, {}));
}

TEST(CTransConnect, theStepsComeInTheirOrder) {
    ScriptedServer server([](auto& connection) { connection.stall(); });
    FaultySocket socket;
    CTrans connection(socket, wire::steadyClock());
    connection.setHost(loopback);
    connection.setPort(server.port());
    ASSERT_TRUE(connection.connect(10, {}));
    connection.disconnect(0);
    EXPECT_EQ(socket.calls, (Lines{"start", "open", "non-blocking", "debug", "connect", "select", "blocking",
                                   "no delay", "blocking", "shutdown 0", "close"}));
}

TEST(CTransConnect, theLocalAddressIsWhereTheServerSeesTheConnectionFrom) {
    std::string seen;
    ScriptedServer server([&](auto& connection) {
        seen = connection.peerAddress();
        connection.stall();
    });
    CTrans connection;
    connection.setHost(loopback);
    connection.setPort(server.port());
    connection.setLocalAddress("127.0.0.2");
    ASSERT_TRUE(connection.connect(10, {}));
    connection.disconnect(0);
    EXPECT_EQ(server.finish(), "");
    EXPECT_EQ(seen, "127.0.0.2");
}

TEST(CTransConnect, aPortThatNobodyListensAtIsRefused) {
    LogRecorder log;
    CTrans connection;
    connection.setHost(loopback);
    connection.setPort(ScriptedServer::unusedPort());
    EXPECT_FALSE(connection.connect(10, log.logger()));
    EXPECT_EQ(log.lines, Lines{"CTrans::iSocketConnect FD_ISSET writefds failed (127.0.0.1) | " +
                               std::to_string(ECONNREFUSED) + " | 2"});
    EXPECT_FALSE(connection.getMessages({}, nullptr));
}

TEST(CTransConnect, aTimeOutOfZeroWaitsEightSecondsAtMost) {
    EXPECT_EQ(waitOf(0, {4s, 7999ms, 8s}), 8s);
}

TEST(CTransConnect, aTimeOutIsCountedInSeconds) {
    EXPECT_EQ(waitOf(10, {8s, 9999ms, 10s}), 10s);
}

TEST(CTransConnect, anEmptyHostCannotBeResolved) {
    FaultySocket socket;
    EXPECT_EQ(logOfFailure(socket, ""), (Lines{"resolveDNSl unable to resolve empty string | 0 | 3",
                                               "CTrans::iSocketConnect resolveDNSl failed () | 0 | 2"}));
}

TEST(CTransConnect, aNameThatIsNotKnownIsReportedWithTheResolversResult) {
    FaultySocket socket;
    socket.resolved = wire::ResolveResult{.result = 11001};
    EXPECT_EQ(logOfFailure(socket, "nowhere"), (Lines{"resolveDNSl getaddrinfo failed (nowhere) | 11001 | 2",
                                                      "CTrans::iSocketConnect resolveDNSl failed (nowhere) | 0 | 2"}));
}

TEST(CTransConnect, aFailedLookUpLeavesTheSocketToTheDestructor) {
    FaultySocket socket;
    socket.resolved = wire::ResolveResult{.result = 11001};
    {
        CTrans connection(socket, wire::steadyClock());
        connection.setHost("nowhere");
        EXPECT_FALSE(connection.connect(1, {}));
        EXPECT_EQ(socket.calls.back(), "resolve nowhere");
    }
    EXPECT_EQ(socket.calls.back(), "close");
}

TEST(CTransConnect, aResolverThatKeepsWaitingEndsWithTheTimeOutOfTheConnection) {
    FaultySocket socket;
    ManualClock clock;
    std::vector<std::chrono::milliseconds> waits;
    socket.onLookup = [&](std::chrono::milliseconds limit) {
        waits.push_back(limit);
        clock.time += limit;
        return std::nullopt;
    };
    LogRecorder log;
    CTrans connection(socket, clock);
    connection.setHost("slow");

    EXPECT_FALSE(connection.connect(1, log.logger()));

    EXPECT_EQ(waits, std::vector<std::chrono::milliseconds>(20, 50ms));
    EXPECT_EQ(log.lines, (Lines{"resolveDNSl getaddrinfo failed (slow) | 11002 | 2",
                                "CTrans::iSocketConnect resolveDNSl failed (slow) | 0 | 2"}));
    EXPECT_EQ(socket.calls.back(), "forget name");
}

TEST(CTransConnect, whatALookUpTakesIsTakenOffTheTimeOutOfTheAttempt) {
    FaultySocket socket;
    ManualClock clock;
    socket.onLookup = [&](std::chrono::milliseconds) {
        clock.time += 980ms;
        return std::optional(wire::ResolveResult{.address = 0x0100007F});
    };
    socket.connected = wire::SocketResult{.value = -1, .fault = wire::SocketFault::wouldBlock};
    socket.selected = wire::ConnectState{};
    CTrans connection(socket, clock);
    connection.setHost("slow");
    CallbackObserver observer([&](std::chrono::milliseconds elapsed, std::uint32_t) {
        clock.time += 20ms;
        return elapsed == 980ms;
    });
    connection.setWaitObserver(&observer);

    EXPECT_FALSE(connection.connect(1, {}));

    EXPECT_EQ(observer.calls, 1);
}

TEST(CTransConnect, aPersonCanGiveUpALookUp) {
    FaultySocket socket;
    ManualClock clock;
    socket.onLookup = [&](std::chrono::milliseconds limit) {
        clock.time += limit;
        return std::nullopt;
    };
    CallbackObserver observer([](std::chrono::milliseconds elapsed, std::uint32_t) { return elapsed < 150ms; });
    CTrans connection(socket, clock);
    connection.setHost("slow");
    connection.setWaitObserver(&observer);

    EXPECT_THROW(static_cast<void>(connection.connect(10, {})), wire::Cancelled);

    EXPECT_EQ(observer.calls, 3);
    EXPECT_EQ(socket.calls.back(), "forget name");
}

TEST(CTransConnect, aLibraryThatDoesNotStartIsThrown) {
    FaultySocket socket;
    socket.starts = false;
    CTrans connection(socket, wire::steadyClock());
    try {
        static_cast<void>(connection.connect(1, {}));
        FAIL() << "nothing thrown";
    } catch (const char* text) {
        EXPECT_STREQ(text, "WSAStartup failed");
    }
}

TEST(CTransConnect, noSocketIsAFailure) {
    FaultySocket socket;
    socket.opened = FaultySocket::failure;
    EXPECT_EQ(logOfFailure(socket), Lines{"CTrans::iSocketConnect socket() | 77 | 3"});
}

TEST(CTransConnect, aSocketThatStaysBlockingIsAFailure) {
    FaultySocket socket;
    socket.madeNonBlocking = FaultySocket::failure;
    EXPECT_EQ(logOfFailure(socket), Lines{"CTrans::iSocketConnect ioctlsocket connect failed (127.0.0.1) | 77 | 2"});
}

TEST(CTransConnect, anAttemptThatFailsAtOnceClosesTheSocket) {
    FaultySocket socket;
    socket.connected = FaultySocket::failure;
    EXPECT_EQ(logOfFailure(socket), Lines{"CTrans::iSocketConnect connect failed (127.0.0.1) | 77 | 2"});
    EXPECT_EQ(socket.calls, (Lines{"start", "open", "non-blocking", "debug", "connect", "shutdown 2", "close"}));
}

TEST(CTransConnect, anAttemptThatSucceedsAtOnceCountsAsFailedAndLogsNothing) {
    FaultySocket socket;
    socket.connected = wire::SocketResult{};
    EXPECT_EQ(logOfFailure(socket), Lines{});
}

TEST(CTransConnect, aFailedSelectClosesTheSocket) {
    FaultySocket socket;
    socket.selected = wire::ConnectState{.value = -1, .error = 77};
    EXPECT_EQ(logOfFailure(socket), Lines{"CTrans::iSocketConnect select failed (127.0.0.1) | 77 | 2"});
    EXPECT_EQ(socket.calls.back(), "close");
}

TEST(CTransConnect, aSocketInTheExceptionSetClosesTheSocket) {
    FaultySocket socket;
    socket.selected = wire::ConnectState{.value = 2, .writable = true, .exception = true, .error = 77};
    EXPECT_EQ(logOfFailure(socket), Lines{"CTrans::iSocketConnect FD_ISSET Err (127.0.0.1) | 77 | 2"});
    EXPECT_EQ(socket.calls.back(), "close");
}

TEST(CTransConnect, aSocketThatStaysNonBlockingClosesTheSocket) {
    FaultySocket socket;
    socket.madeBlocking = FaultySocket::failure;
    EXPECT_EQ(logOfFailure(socket), Lines{"CTrans::iSocketConnect ioctlsocket FIONBIO failed (127.0.0.1) | 77 | 2"});
    EXPECT_EQ(socket.calls.back(), "close");
}

TEST(CTransConnect, disconnectingTwiceIsHarmless) {
    ScriptedServer server([](auto& connection) { connection.stall(); });
    FaultySocket socket;
    CTrans connection(socket, wire::steadyClock());
    connection.setHost(loopback);
    connection.setPort(server.port());
    ASSERT_TRUE(connection.connect(10, {}));
    EXPECT_TRUE(connection.disconnect(0));
    const std::size_t calls = socket.calls.size();
    EXPECT_TRUE(connection.disconnect(0));
    EXPECT_EQ(socket.calls.size(), calls);
}

TEST(CTransConnect, disconnectingWithoutAConnectionIsTrue) {
    CTrans connection;
    EXPECT_TRUE(connection.disconnect(1));
}

TEST(CTransConnect, aShutdownThatKeepsFailingIsTriedElevenTimesBeforeTheCloseThatIsTriedOnce) {
    ScriptedServer server([](auto& connection) { connection.stall(); });
    FaultySocket socket;
    ManualClock clock;
    CTrans connection(socket, clock);
    connection.setHost(loopback);
    connection.setPort(server.port());
    ASSERT_TRUE(connection.connect(10, {}));
    socket.calls.clear();
    socket.shutDown = FaultySocket::failure;
    socket.closed = FaultySocket::failure;
    const auto before = clock.time;
    EXPECT_TRUE(connection.disconnect(0));
    EXPECT_EQ(std::count(socket.calls.begin(), socket.calls.end(), "shutdown 0"), 11);
    EXPECT_EQ(std::count(socket.calls.begin(), socket.calls.end(), "close"), 1);
    EXPECT_EQ(clock.time - before, 12 * 50ms);
}

TEST(CTransConnect, aPeerThatWentFirstCostsNoTimeAtTheEnd) {
    ScriptedServer server([](auto& connection) {
        connection.expect(9); // otherwise the reset might arrive before the connection is established
        connection.reset();
    });
    ManualClock clock;
    CTrans connection(wire::platformSocket(), clock);
    connection.setHost(loopback);
    connection.setPort(server.port());
    ASSERT_TRUE(connection.connect(10, {}));
    connection.sendMessages({});
    EXPECT_EQ(server.finish(), "");
    std::uint8_t byte = 0;
    EXPECT_EQ(connection.iGetData(&byte, 1, 10, nullptr), 0);
    EXPECT_TRUE(connection.disconnect(0));
    EXPECT_EQ(clock.sleeps, 0);
}

TEST(CTransConnect, anObserverIsAskedWhileTheConnectionIsBeingMadeAndMayCancel) {
    const SilentListener listener;
    CallbackObserver observer([&](std::chrono::milliseconds, std::uint32_t) { return observer.calls < 3; });
    CTrans connection;
    connection.setWaitObserver(&observer);
    connection.setHost(loopback);
    connection.setPort(listener.port());
    try {
        static_cast<void>(connection.connect(10, {}));
        FAIL() << "nothing thrown";
    } catch (const wire::Cancelled& cancelled) {
        EXPECT_STREQ(cancelled.what(), "Cancelled");
    }
    EXPECT_EQ(observer.calls, 3);
}
