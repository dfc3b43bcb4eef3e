#include "tests/torture/SampleDatabase.h"

#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"
#include "protocol/rules/PricePlan.h"
#include "wire/Text.h"
#include "wire/WireUuid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <thread>

namespace torture {
namespace {

using protocol::printerListMode::followQueuesInRegion;
using testing::IsEmpty;

constexpr int rounds = 12;

wire::WideString numbered(const std::string& word, int number) {
    return wire::toWide(word + " " + std::to_string(number));
}

// One of several administrators who all work in the same region.
class Administrator {
public:
    Administrator(std::uint16_t port, std::int32_t region, std::string name)
        : port_(port), region_(region), name_(std::move(name)) {}

    // Checks every change right after it was made.
    void work() {
        for (int round = 0; round < rounds; ++round) {
            makeQueueOfContestedName(round);
            makeQueue(round);
            if (round % 3 == 1) {
                changeQueue(round - 1);
            }
            if (round % 3 == 2) {
                deleteQueue(round - 1);
            }
            makeRegion(round);
            makePricePlan(round);
        }
    }

    [[nodiscard]] const std::map<wire::WideString, std::string>& queues() const { return queues_; } // with their ids
    [[nodiscard]] int contestsWon() const { return contestsWon_; }

private:
    void makeQueueOfContestedName(int round) {
        const auto reply = create(numbered("Contested", round));
        if (reply.status.caption.empty()) {
            ++contestsWon_;
        } else {
            EXPECT_EQ(reply.status.caption, u"Not saved");
        }
    }

    void makeQueue(int round) {
        const auto name = numbered(name_, round);
        const auto reply = create(name);
        ASSERT_EQ(reply.status.caption, u"");
        queues_[name] = reply.id;
        expectOwnQueues();
    }

    void changeQueue(int round) {
        auto request = followQueue(region_, numbered(name_ + " changed", round));
        request.record.id = queues_.at(numbered(name_, round));
        const auto reply =
            askFor<protocol::StatusReply>(port_, protocol::UpdateRecordRequest{.record = request.record});
        ASSERT_EQ(reply.value().caption, u"");
        queues_.erase(numbered(name_, round));
        queues_[request.record.name] = request.record.id;
        expectOwnQueues();
    }

    void deleteQueue(int round) {
        const auto queue = queues_.extract(numbered(name_, round));
        server::test::tell(port_, requestOf(protocol::DeleteRecordRequest{.type = protocol::RecordDeletion::queue,
                                                                          .id = queue.mapped()}));
        expectOwnQueues();
    }

    // New regions are not acknowledged: the next list shows them.
    void makeRegion(int round) {
        const auto name = numbered(name_, round);
        const protocol::CreateRegionRequest request{.kind = 0, .parentId = region_, .name = name};
        server::test::tell(port_, requestOf(request));
        const auto regions = regionsAt(port_).value();
        EXPECT_EQ(std::ranges::count(regions, name, &protocol::RegionRecord::name), 1);
    }

    // A plan exists with all of its prices or not at all.
    void makePricePlan(int round) {
        protocol::WritePricePlanRequest request;
        request.plan.id = wire::toText(wire::randomUuid());
        request.plan.name = numbered(name_, round);
        for (std::uint16_t paper = 0; paper < 5; ++paper) {
            request.entries.push_back({.id = wire::toText(wire::randomUuid()), .paperName = "A4", .paperCode = paper});
        }
        server::test::tell(port_, requestOf(request));
        const auto plans = listOf<protocol::PricePlanRecord>(port_, protocol::ListPricePlansRequest{}).value();
        EXPECT_EQ(std::ranges::count(plans, request.plan.id, &protocol::PricePlanRecord::id), 1);
        const protocol::ListPriceEntriesRequest question{.planId = request.plan.id};
        EXPECT_EQ(listOf<protocol::PriceEntryRecord>(port_, question).value().size(), request.entries.size());
    }

    [[nodiscard]] protocol::CreateRecordReply create(const wire::WideString& name) const {
        return askFor<protocol::CreateRecordReply>(port_, followQueue(region_, name)).value();
    }

    void expectOwnQueues() const {
        std::map<wire::WideString, std::string> own;
        const auto all = recordsIn(port_, region_, followQueuesInRegion).value();
        for (const auto& queue : all) {
            if (queue.name.starts_with(wire::toWide(name_))) {
                own[queue.name] = queue.id;
            }
        }
        EXPECT_EQ(own, queues_);
    }

    std::uint16_t port_;
    std::int32_t region_;
    std::string name_;
    std::map<wire::WideString, std::string> queues_;
    int contestsWon_ = 0;
};

TEST(SeveralClients, writingAtOnceEachSeesItsOwnAndNothingIsLost) {
    SampleDatabase sample([](std::uint16_t) {});
    FaultyServer server(sample.file(), sample.shared());
    const auto port = server.waitForPort();
    const auto region = regionsAt(port).value().front().id;
    std::array<Administrator, 4> administrators = {
        Administrator(port, region, "Ada"), Administrator(port, region, "Ben"), Administrator(port, region, "Cleo"),
        Administrator(port, region, "Dan")};
    {
        std::vector<std::jthread> threads;
        for (auto& administrator : administrators) {
            threads.emplace_back([&administrator] { administrator.work(); });
        }
    }

    std::map<wire::WideString, int> kept;
    const auto queues = recordsIn(port, region, followQueuesInRegion).value();
    for (const auto& queue : queues) {
        EXPECT_EQ(++kept[queue.name], 1) << wire::toUtf8(queue.name);
    }
    int contestsWon = 0;
    for (const auto& administrator : administrators) {
        contestsWon += administrator.contestsWon();
        for (const auto& [name, id] : administrator.queues()) {
            EXPECT_TRUE(kept.contains(name)) << wire::toUtf8(name);
        }
    }
    EXPECT_EQ(contestsWon, rounds);
    EXPECT_TRUE(server.ends());
    EXPECT_THAT(damageOf(sample.file()), IsEmpty());
}

} // namespace
} // namespace torture
