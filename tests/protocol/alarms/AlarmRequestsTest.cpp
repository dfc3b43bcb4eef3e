#include "protocol/Catalogue.h"
#include "protocol/alarms/AlarmChoices.h"
#include "protocol/alarms/AlarmProgram.h"
#include "protocol/alarms/EmailRecipient.h"
#include "protocol/alarms/ProgramAction.h"
#include "tests/protocol/RecordBytes.h"

#include <gtest/gtest.h>

namespace protocol {
namespace {

template <Record Request>
void expectRequest(std::uint16_t opcode, const Request& request, const std::string& fields) {
    EXPECT_EQ(Request::opcode, opcode);
    EXPECT_EQ(commandOf<Request>().request, &layoutOf<Request>);
    EXPECT_EQ(hexOf(request), support::toHex(support::dataMessage(support::hex(fields))));
    EXPECT_EQ(fromFields<Request>(fields), request);
    EXPECT_EQ(fromFields<Request>(fields + " 07 07"), request);
}

TEST(ListEmailRecipientsRequest, isTheIdOrEmptyForAll) {
    expectRequest(23, ListEmailRecipientsRequest{.id = "r1"}, "02 00 72 31");
    expectRequest(23, ListEmailRecipientsRequest{}, "00 00");
}

TEST(WriteEmailRecipientRequest, takesTheNameBeforeTheAddressUnlikeTheList) {
    expectRequest(24, WriteEmailRecipientRequest{.id = "r1", .name = u"Jo", .email = u"a@b", .active = 1},
                  "02 00 72 31  04 00 4A 00 6F 00  06 00 61 00 40 00 62 00  01");
}

TEST(WriteEmailRecipientRequest, aDeleteIsAnIdAndEmptyTexts) {
    expectRequest(24, WriteEmailRecipientRequest{.id = "r1", .name = {}, .email = {}}, "02 00 72 31  00 00  00 00  00");
}

TEST(WriteEmailRecipientRequest, textOutsideOfTheBasicPlaneMoves) {
    EXPECT_EQ(hexOf(WriteEmailRecipientRequest{.id = {}, .name = u"\U0001F600", .email = {}, .active = 1}),
              tidy("01 10 00 00 00  00 00  04 00 3E D8 00 DE  00 00  01"));
}

TEST(SetRecipientActiveRequest, isIdAndActive) {
    expectRequest(25, SetRecipientActiveRequest{.id = "r1", .active = 1}, "02 00 72 31  01");
    expectRequest(25, SetRecipientActiveRequest{.id = "r1"}, "02 00 72 31  00");
}

TEST(ListAlarmProgramsRequest, isKindAndFilter) {
    expectRequest(27, ListAlarmProgramsRequest{}, "00  00 00");
    expectRequest(27, ListAlarmProgramsRequest{.kind = 2, .filter = "p1"}, "02  02 00 70 31");
}

TEST(WriteAlarmProgramRequest, isIdNameCommentAndCreator) {
    expectRequest(28, WriteAlarmProgramRequest{.id = {}, .name = u"N", .comment = u"Co", .createdBy = {}},
                  "00 00  02 00 4E 00  04 00 43 00 6F 00  00 00");
    expectRequest(28, WriteAlarmProgramRequest{.id = "p1", .name = u"N", .comment = u"C", .createdBy = u"u"},
                  "02 00 70 31  02 00 4E 00  02 00 43 00  02 00 75 00");
    expectRequest(28, WriteAlarmProgramRequest{.id = "p1", .name = {}, .comment = {}, .createdBy = {}},
                  "02 00 70 31  00 00  00 00  00 00");
}

TEST(WriteAlarmProgramRequest, holdsTheLongestTexts) {
    const wire::WideString text(32767, u'A');
    const auto wide = support::hex("FE FF") + repeated(32767, "41 00");

    EXPECT_EQ(
        hexOf(WriteAlarmProgramRequest{.id = std::string(65535, 'k'), .name = text, .comment = text, .createdBy = {}}),
        support::toHex(
            support::dataMessage(support::hex("FF FF") + repeated(65535, "6B") + wide + wide + support::hex("00 00"))));
}

TEST(AlarmLists, ofEventsAndActionsAreAskedForWithoutFields) {
    EXPECT_EQ(ListAlarmEventsRequest::opcode, 29);
    EXPECT_EQ(ListAlarmActionsRequest::opcode, 30);
    EXPECT_TRUE(findCommand(29)->request->fields.empty());
    EXPECT_TRUE(findCommand(30)->request->fields.empty());
}

TEST(ListAlarmDestinationsRequest, isTheActionCode) {
    expectRequest(31, ListAlarmDestinationsRequest{.actionCode = 0x1234}, "34 12");
}

TEST(ListProgramActionsRequest, isTheProgram) {
    expectRequest(32, ListProgramActionsRequest{.programId = "p1"}, "02 00 70 31");
}

TEST(AddProgramActionRequest, isProgramEventActionAndDestination) {
    expectRequest(33,
                  AddProgramActionRequest{.programId = "p1", .eventId = "jam", .actionCode = 1, .destinationId = "r1"},
                  "02 00 70 31  03 00 6A 61 6D  01 00  02 00 72 31");
    expectRequest(33, AddProgramActionRequest{}, "00 00  00 00  00 00  00 00");
}

TEST(DeleteProgramActionRequest, isTheAction) {
    expectRequest(34, DeleteProgramActionRequest{.actionId = "a1"}, "02 00 61 31");
}

} // namespace
} // namespace protocol
