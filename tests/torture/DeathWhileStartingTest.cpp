#include "tests/torture/SampleDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

namespace torture {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

// A server that dies while it creates its database, or while it closes it.
class DeathWhileStarting : public testing::Test {
protected:
    // A new path for a database; the previous one is removed.
    std::filesystem::path newDatabase() {
        std::filesystem::remove_all(folder_ / "new");
        std::filesystem::create_directory(folder_ / "new");
        return folder_ / "new" / "estate.db";
    }

    // Whether it died before it listened.
    bool diesWhileStarting(const std::filesystem::path& file, int before, const std::vector<std::string>& more) {
        arm(shared_.plan(), changingCalls, Effect::die, before);
        FaultyServer server(file, shared_, more);
        try {
            (void)server.waitForPort();
            disarm(shared_.plan());
            server.kill();
            return false;
        } catch (const std::runtime_error&) {
            disarm(shared_.plan());
            EXPECT_EQ(server.process().wait(), -SIGKILL);
            return true;
        }
    }

    // Only every so many writes, because there are hundreds.
    static constexpr int stepOfNew = 7;
    static constexpr int stepOfSample = 31;

    std::size_t regionsAfterRestart(const std::filesystem::path& file) {
        FaultyServer server(file, shared_);
        const auto regions = regionsAt(server.waitForPort()).value();
        server.kill();
        EXPECT_THAT(damageOf(file), IsEmpty());
        return regions.size();
    }

    server::test::TestFolder folder_;
    SharedPlan shared_{folder_ / "plan"};
};

TEST_F(DeathWhileStarting, aDatabaseThatWasNotFinishedIsMadeByTheNextServer) {
    int before = 0;
    for (bool died = true; died; before += stepOfNew) {
        const auto file = newDatabase();
        died = diesWhileStarting(file, before, {});
        ASSERT_EQ(regionsAfterRestart(file), 0U) << "after death number " << before;
    }
    EXPECT_GT(before, 20 * stepOfNew);
}

TEST_F(DeathWhileStarting, theSampleIsThereAsAWholeOrNotAtAll) {
    constexpr std::size_t all = 10;
    std::size_t regions = 0;
    int before = 0;
    for (bool died = true; died; before += stepOfSample) {
        const auto file = newDatabase();
        died = diesWhileStarting(file, before, {"--sample", "small"});
        regions = regionsAfterRestart(file);
        ASSERT_TRUE(regions == 0 || regions == all) << regions << " regions after death number " << before;
    }
    EXPECT_EQ(regions, all);
    EXPECT_GT(before, 10 * stepOfSample);
}

TEST_F(DeathWhileStarting, aServerThatDiesWhileItClosesTheDatabaseLosesNothing) {
    std::int32_t region = 0;
    const SampleDatabase sample([&](std::uint16_t port) { region = regionsAt(port).value().front().id; });
    Contents expected;
    int before = 0;
    for (bool died = true; died; ++before) {
        const auto file = sample.copy();
        FaultyServer server(file, shared_);
        const auto reply =
            askFor<protocol::CreateRecordReply>(server.waitForPort(), followQueue(region, u"Acknowledged"));
        ASSERT_EQ(reply.value().status.caption, u"");
        arm(shared_.plan(), changingCalls, Effect::writeHalfAndDie, before);
        const bool ended = server.ends();
        died = disarm(shared_.plan());
        ASSERT_EQ(ended, !died);
        (void)regionsAfterRestart(file);
        const auto contents = contentsOf(file, contentsOf(sample.file()));
        if (expected.empty()) {
            expected = contents;
        }
        ASSERT_EQ(differenceOf(contents, expected), "") << "after death number " << before;
    }
    EXPECT_THAT(expected, SizeIs(contentsOf(sample.file()).size() + 1));
    EXPECT_GT(before, 3);
}

} // namespace
} // namespace torture
