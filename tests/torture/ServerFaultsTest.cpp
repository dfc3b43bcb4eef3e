#include "tests/torture/Errands.h"
#include "tests/torture/SampleDatabase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace torture {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

constexpr int failureStatus = 1;

struct Fault {
    std::string name;
    Call call;
    std::int64_t often = forEver; // how many failures in a row count as permanent, where the server only retries
};

std::ostream& operator<<(std::ostream& stream, const Fault& fault) {
    return stream << fault.name;
}

// A server whose calls of one kind fail, one after the other.
class FaultsOfServer : public testing::Test {
protected:
    // Makes each call fail in turn, until an errand meets no failure any more.
    void failEach(Call call, std::int64_t times) {
        int before = 0;
        for (bool failed = true; failed; ++before) {
            arm(sample_.plan(), bits(call), Effect::fail, before, times);
            errands_.run();
            failed = disarm(sample_.plan());
            errands_.run();
            ASSERT_TRUE(errands_.wasAcknowledged()) << "after failure number " << before;
        }
        EXPECT_TRUE(errands_.wasAcknowledged());
        EXPECT_GT(before, 1) << "nothing failed";
        RecordProperty("failures", before - 1);
        expectWellEnded();
    }

    void restart() {
        server_ = std::make_unique<FaultyServer>(file_, sample_.shared());
        errands_.goTo(server_->waitForPort());
    }

    void expectWellEnded() {
        EXPECT_THAT(errands_.lies(), IsEmpty());
        ASSERT_TRUE(server_->ends()) << server_->process().output();
        EXPECT_THAT(damageOf(file_), IsEmpty());
    }

    SampleDatabase sample_{[](std::uint16_t) {}};
    std::filesystem::path file_ = sample_.copy();
    std::unique_ptr<FaultyServer> server_ = std::make_unique<FaultyServer>(file_, sample_.shared());
    Errands errands_{server_->waitForPort()};
};

class ServerFaults : public FaultsOfServer, public testing::WithParamInterface<Fault> {};
class LastingServerFaults : public FaultsOfServer, public testing::WithParamInterface<Fault> {};
class MemoryFaults : public FaultsOfServer {};

TEST_P(ServerFaults, aCallThatFailsOnceHarmsOneCommandAtMost) {
    failEach(GetParam().call, 1);
}

TEST_P(LastingServerFaults, callsThatFailForEverHarmTheServerNoLongerThanTheyDo) {
    failEach(GetParam().call, GetParam().often);
}

// Without any memory a server may end, but only as after other failures: with a reason, and without losing anything.
TEST_F(MemoryFaults, aServerWithoutMemoryGoesOnOrEndsInGoodOrder) {
    int before = 0;
    for (bool failed = true; failed; ++before) {
        arm(sample_.plan(), bits(Call::allocate), Effect::fail, before, forEver);
        errands_.run();
        failed = disarm(sample_.plan());
        errands_.run();
        if (errands_.wasAcknowledged()) {
            continue;
        }
        ASSERT_EQ(server_->process().wait(), failureStatus) << "after failure number " << before;
        EXPECT_THAT(server_->process().output(), HasSubstr("\nvantreld: "));
        restart();
    }
    EXPECT_GT(before, 1) << "nothing failed";
    expectWellEnded();
}

constexpr auto nameOf = [](const auto& instance) { return instance.param.name; };

INSTANTIATE_TEST_SUITE_P(Calls, ServerFaults,
                         testing::Values(Fault{"Allocate", Call::allocate}, Fault{"Open", Call::open},
                                         Fault{"Read", Call::read}, Fault{"Write", Call::write},
                                         Fault{"Sync", Call::sync}, Fault{"Accept", Call::accept},
                                         Fault{"Send", Call::send}, Fault{"Receive", Call::receive},
                                         Fault{"Wait", Call::wait}),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(Calls, LastingServerFaults,
                         testing::Values(Fault{"Open", Call::open}, Fault{"Read", Call::read},
                                         Fault{"Write", Call::write}, Fault{"Sync", Call::sync},
                                         Fault{"Accept", Call::accept, 2}, Fault{"Send", Call::send},
                                         Fault{"Receive", Call::receive}, Fault{"Wait", Call::wait, 50}),
                         nameOf);

} // namespace
} // namespace torture
