#include "protocol/rules/ShortId.h"
#include "tests/protocol/rules/RuleBytes.h"

namespace protocol {
namespace {

using namespace test; // the checks

ShortIdRecord ordinaryShortId() {
    return {.id = ordinaryUuid(),
            .name = u"N",
            .comment = u"C",
            .messageId = {},
            .validMinutes = 1440,
            .reservedMinutes = {},
            .reservedUntil = 45015};
}
const std::string behindShortIdName = "02 00 43 00 00 01 A0 05 00 00 00 01 D7 AF 00 00";
const std::string shortIdFields = uuidFields + "02 00 4E 00" + behindShortIdName;

TEST(ShortIdRecord, whatIsAbsentIsOneZeroByte) {
    expectFields(ordinaryShortId(), shortIdFields);
    expectNoShorterMessage<ShortIdRecord>(shortIdFields);
}

TEST(ShortIdRecord, anOptionalIdThatIsAbsentIsOneByteShorterThanAnEmptyText) {
    ShortIdRecord shortId;
    shortId.id = ordinaryUuid();
    expectFields(shortId, uuidFields + "00 00  00 00  00  00  00  00");
}

TEST(ShortIdRecord, allThatMayBeAbsentMayBePresent) {
    const ShortIdRecord shortId{.id = ordinaryUuid(),
                                .name = {},
                                .comment = {},
                                .messageId = ordinaryUuid(),
                                .validMinutes = 1,
                                .reservedMinutes = 4294967295U,
                                .reservedUntil = 0};
    expectFields(shortId, uuidFields + "00 00 00 00 01" + uuidFields + "01 01 00 00 00 01 FF FF FF FF 01 00 00 00 00");
}

TEST(ShortIdRecord, theTimeOfDayIsSixtyFourBitsHereAndThirtyTwoOnTheWire) {
    auto shortId = ordinaryShortId();
    shortId.reservedUntil = 0x500000001;
    const auto message = makeDataMessage(shortId);
    const support::Bytes fields(message->bytes().begin() + 5, message->bytes().end());

    EXPECT_EQ(fields.size(), support::hex(shortIdFields).size());
    EXPECT_EQ(fromFields<ShortIdRecord>(fields).reservedUntil, 1);
}

TEST(ShortIdRecord, namesOfEveryKindTravel) {
    expectNames<ShortIdRecord>(uuidFields, behindShortIdName);
}

TEST(AddShortIdRequest, isTheRecord) {
    expectFields(AddShortIdRequest{.shortId = ordinaryShortId()}, shortIdFields);
}

TEST(UpdateShortIdRequest, isTheRecord) {
    expectFields(UpdateShortIdRequest{.shortId = ordinaryShortId()}, shortIdFields);
}

TEST(DeleteShortIdRequest, isTheIdAsText) {
    expectFields(DeleteShortIdRequest{.id = ordinaryUuid()}, uuidFields);
}

TEST(ListShortIdsRequest, hasNoFields) {
    EXPECT_TRUE(layoutOf<ListShortIdsRequest>.fields.empty());
}

} // namespace
} // namespace protocol
