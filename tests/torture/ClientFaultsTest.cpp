#include "client/CommandObserver.h"
#include "client/ConnectFailed.h"
#include "tests/server/support/TestFolder.h"
#include "tests/server/support/VantreldProcess.h"
#include "tests/support/LoopbackName.h"
#include "tests/torture/ClientOperations.h"
#include "tests/torture/SharedPlan.h"
#include "wire/WaitObserver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <pthread.h>

namespace torture {
namespace {

using testing::Eq;
using testing::Optional;

// Counts commands without allocating memory.
class CountingObserver final : public client::CommandObserver {
public:
    void commandStarted(const client::CommandReport&) override { ++started; }
    void commandEnded(const client::CommandReport& report) override {
        ++ended;
        allTold &= report.outcome != client::CommandOutcome::running;
    }

    int started = 0;
    int ended = 0;
    bool allTold = true;
};

// Waits as long as a user would.
class Patience final : public wire::WaitObserver {
public:
    bool keepWaiting(std::chrono::milliseconds elapsed, std::uint32_t) override {
        wasTried = elapsed > std::chrono::seconds(2);
        return !wasTried;
    }

    bool wasTried = false;
};

// One operation of a client, whose calls are made to fail one after the other.
class ClientFaults : public testing::TestWithParam<ClientOperation> {
protected:
    void SetUp() override {
        settings_->host = support::loopbackName;
        settings_->port = server_.waitForPort();
        settings_->hooks.commands = &observer_;
        settings_->hooks.wait = &patience_;
        plan_.thread = ::pthread_self();
        currentPlan = &plan_;
        (void)GetParam().run(client_); // the first run creates what later runs find
        const auto result = GetParam().run(client_);
        ASSERT_TRUE(result);
        expected_ = *result;
        ASSERT_THAT(expected_, testing::Not(testing::IsEmpty()));
    }

    void TearDown() override { currentPlan = nullptr; }

    // What the operation returned while something failed; empty when it reported a failure or threw.
    std::optional<std::string> runWithFault(Call call, std::int64_t before, std::int64_t times) {
        arm(plan_, bits(call), Effect::fail, before, times);
        std::optional<std::string> result;
        try {
            result = GetParam().run(client_);
        } catch (const std::exception&) {
            disarm(plan_);
        } catch (const char*) {
            disarm(plan_);
        }
        return result;
    }

    void failEach(Call call, std::int64_t times) {
        int before = 0;
        for (bool failed = true; failed; ++before) {
            SCOPED_TRACE("call of kind " + std::to_string(bits(call)) + ", number " + std::to_string(before));
            const auto result = runWithFault(call, before, times);
            failed = disarm(plan_);
            EXPECT_FALSE(std::exchange(patience_.wasTried, false)) << "it waited for nothing";
            const bool broken = GetParam().mayBreakOff && result && expected_.starts_with(*result);
            EXPECT_TRUE(!result || broken || *result == expected_) << *result;
            EXPECT_EQ(observer_.started, observer_.ended);
            EXPECT_TRUE(observer_.allTold);
            ASSERT_THAT(GetParam().run(client_), Optional(Eq(expected_))) << "it does not work any more";
        }
        failures_ += before - 1;
    }

    void failEachOfAll(std::int64_t times) {
        for (const auto call :
             {Call::resolve, Call::socket, Call::connect, Call::send, Call::receive, Call::wait, Call::allocate}) {
            failEach(call, times);
        }
        EXPECT_GT(failures_, 10);
        RecordProperty("failures", failures_);
    }

    server::test::TestFolder folder_;
    server::test::VantreldProcess server_{{"--database", (folder_ / "estate.db").string(), "--sample", "small",
                                           "--port", "0", "--login-required", "0", "--user", "admin", "--password-file",
                                           folder_.write("password", "secret\n").string()}};
    CountingObserver observer_;
    Patience patience_;
    FaultPlan plan_;
    std::shared_ptr<client::CQVXAdminClassProperties> settings_ = std::make_shared<client::CQVXAdminClassProperties>();
    client::CQVXAdminClass client_{settings_};
    std::string expected_;
    int failures_ = 0;
};

TEST_P(ClientFaults, aCallThatFailsOnceEndsInSuccessOrAClearFailure) {
    failEachOfAll(1);
}

TEST_P(ClientFaults, callsThatFailForEverEndInAClearFailure) {
    failEachOfAll(forEver);
}

INSTANTIATE_TEST_SUITE_P(Operations, ClientFaults, testing::ValuesIn(clientOperations()),
                         [](const auto& instance) { return instance.param.name; });

} // namespace
} // namespace torture
