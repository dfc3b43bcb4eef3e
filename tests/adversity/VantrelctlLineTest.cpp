#include "tests/adversity/Proxy.h"
#include "tests/hosts/ctl/VantrelctlFixture.h"

#include <gtest/gtest.h>

#include <algorithm>

// The command line over a faulty connection.
namespace adversity {
namespace {

using namespace std::chrono_literals;
using hosttest::Arguments;

class VantrelctlLine : public hosttest::VantrelctlFixture {
protected:
    VantrelctlLine() {
        startServerWithSample();
        line_.emplace(static_cast<std::uint16_t>(std::stoi(port)));
        straightPort_ = port;
    }

    hosttest::Outcome over(const Fault& fault, const Arguments& command) {
        line_->set(fault);
        port = std::to_string(line_->port());
        auto outcome = ctl(command);
        port = straightPort_;
        return outcome;
    }

    std::optional<Proxy> line_;
    std::string straightPort_;
};

TEST_F(VantrelctlLine, aTreeReadByteByByteIsTheSameTree) {
    const Arguments tree{"tree", "Printers", "--depth", "4"};
    const auto expected = output(tree);
    for (const auto direction : {Direction::toServer, Direction::toClient}) {
        EXPECT_EQ(over({.direction = direction, .pieceSize = 1}, tree).output, expected);
        EXPECT_EQ(over({.direction = direction, .delay = 2ms}, tree).output, expected);
    }
}

// An increased size goes unnoticed at the end of a reply, where missing bytes count as zeros.
TEST_F(VantrelctlLine, aCallThatIsCutOrDamagedFailsWithOneLineOrGivesWhatWasSent) {
    const Arguments call{"call", "0", "u8:0", "u32:0", "u16:0"};
    const auto sound = over({}, call);
    ASSERT_EQ(sound.status, 0) << sound.errors;
    constexpr std::size_t command = 2; // after the two connections of the login
    for (const std::size_t place : {0U, 1U, 5U, 9U, 15U, 16U, 25U, 40U}) {
        for (const Fault& fault :
             {Fault{.direction = Direction::toClient, .cutAfter = place, .connection = command},
              Fault{.direction = Direction::toClient, .added = {{place, std::uint8_t{0x41}}}, .connection = command}}) {
            const auto outcome = over(fault, call);
            if (outcome.status == 0) {
                EXPECT_EQ(outcome.output, sound.output) << place;
            } else {
                EXPECT_EQ(std::ranges::count(outcome.errors, '\n'), 1) << place << ": " << outcome.errors;
            }
        }
    }
}

TEST_F(VantrelctlLine, aLoginThatIsCutAnywhereEndsWithStatusThree) {
    for (const std::size_t connection : {0U, 1U}) {
        for (const std::size_t place : {0U, 1U, 8U, 15U}) {
            for (const auto direction : {Direction::toServer, Direction::toClient}) {
                const auto outcome =
                    over({.direction = direction, .cutAfter = place, .connection = connection}, {"login"});
                EXPECT_EQ(outcome.status, 3) << connection << ", " << place << ": " << outcome.errors;
            }
        }
    }
}

} // namespace
} // namespace adversity
