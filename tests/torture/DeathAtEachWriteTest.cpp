#include "tests/torture/SampleDatabase.h"
#include "tests/torture/WideCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

namespace torture {
namespace {

using testing::IsEmpty;

// One command, and a server that dies at each of the writes needed to carry it out.
class DeathAtEachWrite : public testing::TestWithParam<WideCommand> {
protected:
    // Carries the command out without faults, to know what the database contains then.
    void SetUp() override {
        const auto file = sample_.copy();
        FaultyServer server(file, sample_.shared());
        (void)server::test::ask(server.waitForPort(), request_);
        ASSERT_TRUE(server.ends());
        after_ = contentsOf(file, before_);
        ASSERT_NE(before_, after_);
        ASSERT_THAT(damageOf(file), IsEmpty());
    }

    // Whether the server died before it finished the command.
    bool diesDuringCommand(const std::filesystem::path& file, std::uint32_t calls, Effect effect, int before) {
        FaultyServer server(file, sample_.shared());
        const auto port = server.waitForPort();
        arm(sample_.plan(), calls, effect, before);
        answer_ = server::test::ask(port, request_);
        const bool died = disarm(sample_.plan());
        if (died) {
            EXPECT_EQ(server.process().wait(), -SIGKILL);
        } else {
            server.kill();
        }
        return died;
    }

    // Lets a server recover the database, and returns its content.
    Contents contentsAfterRestart(const std::filesystem::path& file) {
        FaultyServer server(file, sample_.shared());
        EXPECT_TRUE(regionsAt(server.waitForPort()).has_value());
        server.kill();
        EXPECT_THAT(damageOf(file), IsEmpty());
        return contentsOf(file, before_);
    }

    // Returns how many deaths there were.
    int dieAtEach(std::uint32_t calls, Effect effect, int step = 1, bool powerFails = false) {
        sample_.plan().keepsSynced = powerFails;
        for (int before = 0, deaths = 0;; before += step, ++deaths) {
            const auto file = sample_.copy();
            if (powerFails) {
                std::filesystem::copy_file(file, file.string() + ".synced",
                                           std::filesystem::copy_options::overwrite_existing);
            }
            const bool died = diesDuringCommand(file, calls, effect, before);
            if (powerFails) {
                losePower(file);
            }
            const auto contents = contentsAfterRestart(file);
            if (!died) {
                EXPECT_EQ(differenceOf(contents, after_), "") << "the command was carried out";
                return deaths;
            }
            EXPECT_TRUE(contents == before_ || contents == after_) << "after death number " << before << "\n"
                                                                   << differenceOf(contents, before_) << "\n"
                                                                   << differenceOf(contents, after_);
            EXPECT_THAT(answer_, IsEmpty());
        }
    }

    static constexpr int stepOfTorn = 3; // coprime to the two writes that each page takes

    Bytes request_;
    SampleDatabase sample_{[this](std::uint16_t port) { request_ = GetParam().request(port); }};
    Contents before_ = contentsOf(sample_.file());
    Contents after_;
    Bytes answer_;
};

TEST_P(DeathAtEachWrite, theCommandIsWhollyThereOrWhollyNot) {
    EXPECT_GT(dieAtEach(changingCalls, Effect::die), 4);
}

TEST_P(DeathAtEachWrite, theCommandIsWhollyThereOrWhollyNotWhenTheWriteIsTorn) {
    EXPECT_GT(dieAtEach(bits(Call::write), Effect::writeHalfAndDie, stepOfTorn), 1);
}

TEST_P(DeathAtEachWrite, theCommandIsWhollyThereOrWhollyNotWhenThePowerFails) {
    EXPECT_GE(dieAtEach(bits(Call::sync), Effect::die, 1, true), 1);
}

INSTANTIATE_TEST_SUITE_P(Commands, DeathAtEachWrite, testing::ValuesIn(wideCommands()),
                         [](const auto& instance) { return instance.param.name; });

} // namespace
} // namespace torture
