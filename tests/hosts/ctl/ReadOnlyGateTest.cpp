#include "hosts/ctl/ReadOnlyGate.h"

#include "hosts/ctl/Failure.h"

#include <gtest/gtest.h>

namespace {

class CountingObserver final : public client::RequestObserver {
public:
    void requestMade(const protocol::Command& /*command*/, std::span<const std::uint8_t> /*data*/) override { ++count; }
    int count = 0;
};

const protocol::Command& called(std::string_view name) {
    for (const auto& command : protocol::catalogue()) {
        if (command.name == name) {
            return command;
        }
    }
    throw std::out_of_range("no such command");
}

TEST(ReadOnlyGate, letsReadsPassAndStopsWritesWhileItIsClosed) {
    CountingObserver next;
    ctl::ReadOnlyGate gate(next);
    gate.closeForWrites(true);

    EXPECT_NO_THROW(gate.requestMade(called("ListRegions"), {}));
    EXPECT_THROW(gate.requestMade(called("CreateRegion"), {}), ctl::Failure);
    EXPECT_EQ(next.count, 1);
}

TEST(ReadOnlyGate, letsEverythingPassOtherwise) {
    CountingObserver next;
    ctl::ReadOnlyGate gate(next);

    EXPECT_NO_THROW(gate.requestMade(called("CreateRegion"), {}));
    EXPECT_EQ(next.count, 1);
}

TEST(ReadOnlyGate, aWriteWithAReplyIsAWrite) {
    EXPECT_FALSE(ctl::onlyReads(called("CreateRecord")));
    EXPECT_FALSE(ctl::onlyReads(called("UpdateRecord")));
    EXPECT_FALSE(ctl::onlyReads(called("WriteAlarmProgram")));
    EXPECT_TRUE(ctl::onlyReads(called("GetPageLimit")));
}

} // namespace
