#include "tests/adversity/Operations.h"
#include "tests/adversity/ProxiedServer.h"

#include <gtest/gtest.h>

namespace adversity {
namespace {

using namespace std::chrono_literals;

// A server with short time-outs, so that tests do not wait for it.
constexpr server::Limits impatient{.headerTime = 250ms, .bodyTime = 250ms};

class SlowLine : public ProxiedServer {};

class BrokenLine : public ProxiedServer {
protected:
    BrokenLine() : ProxiedServer(impatient) {}

    // What one run of an operation sends and receives when nothing is wrong.
    [[nodiscard]] std::size_t lengthOf(const Operation& operation, Direction direction) {
        line->set({});
        const auto before = line->carried(direction);
        (void)outcomeOf(operation, overLine());
        return line->carried(direction) - before;
    }

    void expectFailure(const Operation& operation, const Fault& fault, const std::string& sound,
                       const std::string& what) {
        line->set(fault);
        const auto outcome = outcomeOf(operation, overLine());
        if (outcome != sound) {
            EXPECT_TRUE(isFailureReported()) << operation.name << ", " << what << ": " << outcome;
        }
    }
};

TEST_F(SlowLine, everyReadGivesTheSameByteByByte) {
    for (const auto direction : {Direction::toServer, Direction::toClient}) {
        line->set({.direction = direction, .pieceSize = 1});
        for (const auto& operation : everyRead()) {
            EXPECT_EQ(outcomeOf(operation, overLine()), outcomeOf(operation, straight())) << operation.name;
        }
    }
}

TEST_F(SlowLine, everyReadGivesTheSameLate) {
    for (const auto direction : {Direction::toServer, Direction::toClient}) {
        line->set({.direction = direction, .pieceSize = 4096, .delay = 1ms});
        for (const auto& operation : everyRead()) {
            EXPECT_EQ(outcomeOf(operation, overLine()), outcomeOf(operation, straight())) << operation.name;
        }
    }
}

TEST_F(SlowLine, aLoginSucceedsByteByByteBothWays) {
    for (const auto direction : {Direction::toServer, Direction::toClient}) {
        line->set({.direction = direction, .pieceSize = 1});
        client::CQVXAdminClass client(overLine());
        EXPECT_EQ(client.login(u"admin", u"secret", u"office"), protocol::loginStatus::loggedIn);
    }
}

TEST_F(SlowLine, aChangeIsMadeByteByByte) {
    for (const auto direction : {Direction::toServer, Direction::toClient}) {
        line->set({.direction = direction, .pieceSize = 1});
        const auto* name = direction == Direction::toServer ? u"Dripping there" : u"Dripping back";
        EXPECT_EQ(outcomeOf(addingPrinter(name), overLine()), "made");
        EXPECT_NE(outcomeOf(addingPrinter(name), straight()), "made");
    }
}

TEST_F(BrokenLine, aReadThatIsCutAnywhereEndsInAReportedFailure) {
    for (const auto& operation : shortReads()) {
        const auto sound = outcomeOf(operation, straight());
        for (const auto direction : {Direction::toServer, Direction::toClient}) {
            const auto length = lengthOf(operation, direction);
            for (std::size_t place = 0; place < length; ++place) {
                expectFailure(operation, {.direction = direction, .cutAfter = place}, sound,
                              "cut after " + std::to_string(place));
            }
        }
    }
}

TEST_F(BrokenLine, aReadWithOneByteChangedAnywhereEndsInAReportedFailure) {
    for (const auto& operation : shortReads()) {
        const auto sound = outcomeOf(operation, straight());
        for (const auto direction : {Direction::toServer, Direction::toClient}) {
            const auto length = lengthOf(operation, direction);
            for (std::size_t place = 0; place < length; ++place) {
                expectFailure(operation, {.direction = direction, .added = {{place, std::uint8_t{0x81}}}}, sound,
                              "byte " + std::to_string(place));
            }
        }
    }
}

// The checksum does not detect it; the outcome may be anything that the contract allows, but there is one.
TEST_F(BrokenLine, aReadWithTwoBytesChangedAgainstEachOtherStillEnds) {
    for (const auto& operation : shortReads()) {
        for (const auto direction : {Direction::toServer, Direction::toClient}) {
            const auto length = lengthOf(operation, direction);
            for (std::size_t place = 9; place + 3 < length; ++place) {
                line->set(
                    {.direction = direction, .added = {{place, std::uint8_t{1}}, {place + 3, std::uint8_t{0xFF}}}});
                (void)outcomeOf(operation, overLine());
            }
        }
    }
    for (const auto& operation : shortReads()) {
        EXPECT_FALSE(outcomeOf(operation, straight()).starts_with("exception")) << operation.name;
    }
}

TEST_F(BrokenLine, aChangeThatIsCutOrDamagedOnItsWayIsNotMade) {
    const auto length = lengthOf(addingPrinter(u"Printer 1"), Direction::toServer);
    const auto second = addingPrinter(u"Printer 2");
    for (std::size_t place = 0; place < length; ++place) {
        expectFailure(second, {.cutAfter = place}, "", "cut after " + std::to_string(place));
        expectFailure(second, {.added = {{place, std::uint8_t{0x10}}}}, "", "byte " + std::to_string(place));
    }
    EXPECT_EQ(outcomeOf(second, straight()), "made");
}

} // namespace
} // namespace adversity
