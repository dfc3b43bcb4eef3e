#include "tests/torture/SampleDatabase.h"

#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"
#include "wire/Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <set>
#include <thread>

namespace torture {
namespace {

using protocol::printerListMode::followQueuesInRegion;
using testing::IsEmpty;
using Names = std::set<wire::WideString>;

wire::WideString numbered(const char* word, int round, int number) {
    return wire::toWide(std::string(word) + " " + std::to_string(round) + "." + std::to_string(number));
}

// A database that survives the deaths of a hundred servers.
class Kill : public testing::Test {
protected:
    // Repeats a step until the server is gone.
    template <class Step>
    void untilGone(Step step) {
        try {
            for (int number = 0; step(number); ++number) {
                done_.fetch_add(1);
                done_.notify_all();
            }
        } catch (const std::runtime_error&) {
            // It cannot be reached any more.
        }
        done_.fetch_add(steps);
        done_.notify_all();
    }

    // Makes queues and keeps the names that were acknowledged.
    void makeQueues(std::uint16_t port, int round) {
        untilGone([&](int number) {
            const auto name = numbered("queue", round, number);
            const auto reply = askFor<protocol::CreateRecordReply>(port, followQueue(region_, name));
            if (reply && reply->status.caption.empty()) {
                acknowledged_.insert(name);
            }
            return reply.has_value();
        });
    }

    // Makes regions, which are not acknowledged, and keeps the names that were listed.
    void makeRegions(std::uint16_t port, int round) {
        untilGone([&](int number) {
            const protocol::CreateRegionRequest request{
                .kind = 0, .parentId = region_, .name = numbered("region", round, number)};
            (void)server::test::ask(port, requestOf(request));
            const auto regions = regionsAt(port);
            if (!regions) {
                return false;
            }
            for (const auto& region : *regions) {
                listed_.insert(region.name);
            }
            return true;
        });
    }

    // Waits until so many steps are done, but no longer than the server lives.
    void waitFor(int count) {
        for (int now = 0; (now = done_.load()) < count;) {
            done_.wait(now);
        }
    }

    static constexpr int steps = 1000; // more than any test waits for

    std::int32_t region_ = 0;
    SampleDatabase sample_{[this](std::uint16_t port) { region_ = regionsAt(port).value().front().id; }};
    std::filesystem::path file_ = sample_.copy();
    std::filesystem::path lookedAt_ = sample_.folder("looked at");
    std::atomic<int> done_ = 0;
    Names acknowledged_;
    Names listed_;
};

TEST_F(Kill, aHundredTimesInTheMiddleOfWritesLosesNothing) {
    for (int round = 0; round < 100; ++round) {
        FaultyServer server(file_, sample_.shared());
        const auto port = server.waitForPort();
        done_ = 0;
        {
            const std::jthread queues([&] { makeQueues(port, round); });
            const std::jthread regions([&] { makeRegions(port, round); });
            waitFor(1 + round % 5);
            server.process().signal(SIGKILL);
        }
        ASSERT_EQ(server.process().wait(), -SIGKILL);
        ASSERT_THAT(damageOf(copyDatabase(file_, lookedAt_)), IsEmpty()) << "round " << round;
    }

    FaultyServer server(file_, sample_.shared());
    const auto port = server.waitForPort();
    Names kept;
    const auto queues = recordsIn(port, region_, followQueuesInRegion).value();
    for (const auto& queue : queues) {
        EXPECT_TRUE(kept.insert(queue.name).second) << "twice: " << wire::toUtf8(queue.name);
    }
    const auto regions = regionsAt(port).value();
    for (const auto& region : regions) {
        kept.insert(region.name);
    }
    EXPECT_GT(acknowledged_.size(), 30U);
    EXPECT_GT(listed_.size(), 30U);
    EXPECT_TRUE(std::ranges::includes(kept, acknowledged_));
    EXPECT_TRUE(std::ranges::includes(kept, listed_));
}

} // namespace
} // namespace torture
