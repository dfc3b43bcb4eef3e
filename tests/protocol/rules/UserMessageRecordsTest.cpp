#include "protocol/rules/UserMessage.h"
#include "tests/protocol/rules/RuleBytes.h"

namespace protocol {
namespace {

using namespace test; // the checks

UserMessageRecord ordinaryMessage() {
    return {.id = ordinaryUuid(),
            .name = u"N",
            .subtitle = {},
            .caption = u"C",
            .text = u"T",
            .icon = 2,
            .type = 3,
            .builtIn = true};
}
const std::string behindMessageName = "02 00 43 00 02 00 54 00 02 00 00 00 03 00 00 00 01";
const std::string messageFields = uuidFields + "02 00 4E 00" + behindMessageName;

TEST(UserMessageRecord, threeTextsTravel) {
    expectFields(ordinaryMessage(), messageFields);
    expectNoShorterMessage<UserMessageRecord>(messageFields);
}

TEST(UserMessageRecord, aFourthTextHasNoPlaceOnTheWireAndDoesNotComeBack) {
    auto message = ordinaryMessage();
    message.subtitle = u"stays here";

    EXPECT_EQ(hexOf(message), support::toHex(support::dataMessage(support::hex(messageFields))));
    EXPECT_EQ(fromFields<UserMessageRecord>(messageFields).subtitle, u"");
}

TEST(UserMessageRecord, aNewOneIsAMessageBoxThatIsNotBuiltIn) {
    UserMessageRecord message;
    message.id = ordinaryUuid();
    expectFields(message, uuidFields + "00 00 00 00 00 00 00 00 00 00 01 00 00 00 00");
}

TEST(UserMessageRecord, namesOfEveryKindTravel) {
    expectNames<UserMessageRecord>(uuidFields, behindMessageName);
}

TEST(UserMessageRecord, anEmptyIdIsNoUuid) {
    try {
        static_cast<void>(fromFields<UserMessageRecord>("00 00" + behindMessageName));
        ADD_FAILURE() << "it was read";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "invalid uuid string");
    }
}

TEST(WriteUserMessageRequest, isTheActionAndTheMessage) {
    expectFields(WriteUserMessageRequest{.action = 1, .message = ordinaryMessage()}, "01" + messageFields);
    expectFields(WriteUserMessageRequest{.action = 2, .message = ordinaryMessage()}, "02" + messageFields);
}

TEST(DeleteUserMessageRequest, isActionThreeAndTheId) {
    expectFields(DeleteUserMessageRequest{.id = ordinaryUuid()}, "03" + uuidFields);
}

TEST(ListUserMessagesRequest, isAOneAndAnEmptyText) {
    expectFields(ListUserMessagesRequest{}, "01 00 00");
}

} // namespace
} // namespace protocol
