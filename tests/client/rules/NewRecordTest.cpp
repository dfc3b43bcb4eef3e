#include "client/rules/NewRecord.h"

#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/UserMessage.h"

#include <gtest/gtest.h>

namespace client {
namespace {

using protocol::PricePlanRecord;
using protocol::RuleEntryRecord;
using protocol::UserMessageRecord;

TEST(NewRecord, twoDifferInTheirIds) {
    EXPECT_NE(newRecord<PricePlanRecord>().id, newRecord<PricePlanRecord>().id);
    EXPECT_NE(newRecord<UserMessageRecord>().id, newRecord<UserMessageRecord>().id);
}

TEST(NewRecord, hasARandomIdAndNothingElse) {
    auto made = newRecord<RuleEntryRecord>();
    ASSERT_EQ(made.id.size(), 36U);
    EXPECT_EQ(made.id.at(14), '4'); // the version
    EXPECT_EQ(made.id.find_first_not_of("0123456789abcdef-"), std::string::npos);

    made.id.clear();
    EXPECT_EQ(made, RuleEntryRecord{});
}

TEST(NewRecord, aRecordThatIsReadMakesNoId) {
    EXPECT_EQ(PricePlanRecord{}.id, "");
    EXPECT_TRUE(UserMessageRecord{}.id.is_nil());
}

} // namespace
} // namespace client
