#include "wire/NameLookup.h"

#include "tests/support/LoopbackName.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <memory>
#include <stdexcept>

namespace {

using namespace std::chrono_literals;
using wire::KnownLookup;
using wire::ResolveResult;
using wire::ThreadLookup;

constexpr std::chrono::milliseconds generous = 20s;

TEST(NameLookup, givesWhatTheResolverFound) {
    ThreadLookup lookup([] { return ResolveResult{.result = 0, .address = 7}; });

    const auto found = lookup.wait(generous);

    ASSERT_TRUE(found);
    EXPECT_EQ(found->address, 7U);
}

TEST(NameLookup, givesNothingForAsLongAsTheResolverWaits) {
    std::promise<void> server;
    ThreadLookup lookup([answer = server.get_future().share()] {
        answer.wait();
        return ResolveResult{.result = 3};
    });

    EXPECT_FALSE(lookup.wait(0ms));
    EXPECT_FALSE(lookup.wait(1ms));

    server.set_value();
    EXPECT_EQ(lookup.wait(generous)->result, 3);
}

TEST(NameLookup, thatIsGivenUpEndsByItselfAndLeavesNothingBehind) {
    std::promise<void> server;
    std::promise<void> ended;
    struct Held {
        std::promise<void>& ended;
        ~Held() { ended.set_value(); }
    };
    auto lookup =
        std::make_unique<ThreadLookup>([answer = server.get_future().share(), held = std::make_shared<Held>(ended)] {
            answer.wait();
            return ResolveResult{};
        });

    EXPECT_FALSE(lookup->wait(0ms));
    lookup.reset();
    server.set_value();

    EXPECT_EQ(ended.get_future().wait_for(generous), std::future_status::ready);
}

TEST(NameLookup, aResolverThatThrowsHasFailed) {
    ThreadLookup lookup([]() -> ResolveResult { throw std::runtime_error("no memory"); });

    EXPECT_EQ(lookup.wait(generous)->result, wire::lookupFailed);
}

TEST(NameLookup, thatIsKnownNeedsNoWait) {
    EXPECT_EQ(KnownLookup(ResolveResult{.result = 5}).wait(0ms)->result, 5);
}

TEST(NameLookup, ofThisMachineFindsTheLoopbackAddress) {
    const auto found = wire::platformSocket().resolve(support::loopbackName)->wait(generous);

    ASSERT_TRUE(found);
    EXPECT_EQ(found->result, 0);
    EXPECT_EQ(found->address, wire::platformSocket().parseAddress("127.0.0.1"));
}

} // namespace
