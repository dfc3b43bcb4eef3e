#include "protocol/rules/PageLimit.h"
#include "tests/protocol/rules/RuleBytes.h"

namespace protocol {
namespace {

using namespace test; // the checks

PageLimitRecord ordinaryLimit() {
    return {.id = "l1",
            .priority = 0x0102,
            .name = u"N",
            .comment = u"C",
            .document = u"D",
            .format = 262,
            .color = 2,
            .duplex = 1,
            .maxPages = 500,
            .action = 6,
            .maxCost = 1.5F,
            .messageId = ordinaryUuid(),
            .destinationId = "q",
            .enforce = 1,
            .extraFlag = true,
            .extraText1 = u"x",
            .extraId = "i",
            .extraText2 = u"y"};
}
const std::string beforeLimitName = "02 00 6C 31 02 01";
const std::string behindLimitName = "02 00 43 00 02 00 44 00 06 01 02 01 F4 01 06 00 00 C0 3F 01" + uuidFields +
                                    "01 00 71 01 01 02 00 78 00 01 00 69 02 00 79 00";
const std::string limitFields = beforeLimitName + "02 00 4E 00" + behindLimitName;

TEST(PageLimitRecord, allEighteenFieldsTravelInTheirOrder) {
    expectFields(ordinaryLimit(), limitFields);
    expectNoShorterMessage<PageLimitRecord>(limitFields);
}

TEST(PageLimitRecord, anEmptyOneHasNoMessage) {
    expectFields(PageLimitRecord{}, "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                    "00 00 00 00 00 00 00 00 00 00");
}

TEST(PageLimitRecord, namesOfEveryKindTravel) {
    expectNames<PageLimitRecord>(beforeLimitName, behindLimitName);
}

TEST(PageLimitName, isIdAndName) {
    expectFields(PageLimitName{.id = "l1", .name = u"N"}, "02 00 6C 31 02 00 4E 00");
    expectFields(PageLimitName{}, "00 00 00 00");
    expectNames<PageLimitName>("02 00 6C 31", "");
}

TEST(WritePageLimitRequest, isTheActionAndTheLimit) {
    expectFields(WritePageLimitRequest{.action = 1, .limit = ordinaryLimit()}, "01" + limitFields);
    expectFields(WritePageLimitRequest{.action = 2, .limit = ordinaryLimit()}, "02" + limitFields);
}

TEST(GetPageLimitRequest, isTheId) {
    expectFields(GetPageLimitRequest{.id = "l1"}, "02 00 6C 31");
}

TEST(DeletePageLimitRequest, isTheId) {
    expectFields(DeletePageLimitRequest{.id = "l1"}, "02 00 6C 31");
}

TEST(ListPageLimitsRequest, hasNoFields) {
    EXPECT_TRUE(layoutOf<ListPageLimitsRequest>.fields.empty());
}

} // namespace
} // namespace protocol
