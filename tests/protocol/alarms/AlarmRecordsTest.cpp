#include "protocol/alarms/AlarmChoices.h"
#include "protocol/alarms/AlarmProgram.h"
#include "protocol/alarms/EmailRecipient.h"
#include "protocol/alarms/ProgramAction.h"
#include "tests/protocol/RecordBytes.h"

#include <gtest/gtest.h>

namespace protocol {
namespace {

using support::Bytes;
using support::hex;

const wire::WideString face = u"\U0001F600";
const wire::WideString movedFace = u"\U0001FA00"; // as the wire's conversion leaves it, once over
const Bytes longestNarrow = hex("FF FF") + repeated(65535, "6B");
const Bytes longestWide = hex("FE FF") + repeated(32767, "41 00");
const wire::WideString longestText(32767, u'A');

template <Record R>
void expectBothWays(const R& record, const Bytes& fields) {
    EXPECT_EQ(hexOf(record), support::toHex(support::dataMessage(fields)));
    EXPECT_EQ(fromFields<R>(fields), record);
    EXPECT_EQ(fromFields<R>(fields + hex("01 02 03")), record) << "with bytes behind that a newer server sends";
}

template <Record R>
void expectBothWays(const R& record, const char* fields) {
    expectBothWays(record, hex(fields));
}

template <Record R>
void expectThrowsWhenCut(const Bytes& fields) {
    for (std::size_t size = 0; size < fields.size(); ++size) {
        EXPECT_THROW((void)fromFields<R>(Bytes(fields.begin(), fields.begin() + static_cast<std::ptrdiff_t>(size))),
                     const char*)
            << size;
    }
}

TEST(EmailRecipientRecord, isIdAddressNameAndActive) {
    const char* const fields = "02 00 72 31  06 00 61 00 40 00 62 00  04 00 41 00 6E 00  01";
    expectBothWays(EmailRecipientRecord{.id = "r1", .email = u"a@b", .name = u"An", .active = true}, fields);
    expectBothWays(EmailRecipientRecord{}, "00 00  00 00  00 00  00");
    expectThrowsWhenCut<EmailRecipientRecord>(hex(fields));
}

TEST(EmailRecipientRecord, theCharacterOfAZeroIsANonZeroByte) {
    EXPECT_TRUE(fromFields<EmailRecipientRecord>("00 00  00 00  00 00  30").active);
}

TEST(EmailRecipientRecord, holdsTheLongestTexts) {
    expectBothWays(EmailRecipientRecord{.id = std::string(65535, 'k'), .email = longestText, .name = longestText},
                   longestNarrow + longestWide + longestWide + hex("00"));
}

TEST(EmailRecipientRecord, textOutsideOfTheBasicPlaneMovesAndAnOddByteIsLost) {
    const auto record = fromFields<EmailRecipientRecord>("00 00  04 00 3D D8 00 DE  05 00 41 00 42 00 43  01");
    EXPECT_EQ(record.email, movedFace);
    EXPECT_EQ(record.name, u"AB");
    EXPECT_TRUE(record.active);
    EXPECT_EQ(hexOf(EmailRecipientRecord{.id = {}, .email = face, .name = {}}),
              tidy("01 10 00 00 00  00 00  04 00 3E D8 00 DE  00 00  00"));
}

TEST(AlarmProgramRecord, isIdNameCommentCreatorAndDate) {
    const char* const fields =
        "02 00 70 31  02 00 4E 00  04 00 43 00 6F 00  02 00 75 00  08 00 32 00 30 00 32 00 36 00";
    expectBothWays(
        AlarmProgramRecord{.id = "p1", .name = u"N", .comment = u"Co", .createdBy = u"u", .creationDate = u"2026"},
        fields);
    expectBothWays(AlarmProgramRecord{}, "00 00  00 00  00 00  00 00  00 00");
    expectThrowsWhenCut<AlarmProgramRecord>(hex(fields));
}

TEST(AlarmProgramRecord, holdsTheLongestTexts) {
    expectBothWays(AlarmProgramRecord{.id = std::string(65535, 'k'),
                                      .name = longestText,
                                      .comment = longestText,
                                      .createdBy = longestText,
                                      .creationDate = longestText},
                   longestNarrow + longestWide + longestWide + longestWide + longestWide);
}

TEST(AlarmProgramRecord, textOutsideOfTheBasicPlaneMovesAndAnOddByteIsLost) {
    const auto record =
        fromFields<AlarmProgramRecord>("00 00  04 00 3D D8 00 DE  03 00 41 00 43  04 00 3D D8 00 DE  02 00 44 00");
    EXPECT_EQ(record, (AlarmProgramRecord{
                          .id = {}, .name = movedFace, .comment = u"A", .createdBy = movedFace, .creationDate = u"D"}));
}

TEST(WriteAlarmProgramReply, isTheId) {
    expectBothWays(WriteAlarmProgramReply{.id = "new"}, "03 00 6E 65 77");
    expectBothWays(WriteAlarmProgramReply{}, "00 00");
    expectBothWays(WriteAlarmProgramReply{.id = std::string(65535, 'k')}, longestNarrow);
}

TEST(AlarmEventRecord, isIdAndName) {
    expectBothWays(AlarmEventRecord{.id = "e1", .name = u"Jam"}, "02 00 65 31  06 00 4A 00 61 00 6D 00");
    expectBothWays(AlarmEventRecord{}, "00 00  00 00");
    expectBothWays(AlarmEventRecord{.id = std::string(65535, 'k'), .name = longestText}, longestNarrow + longestWide);
    EXPECT_EQ(fromFields<AlarmEventRecord>("00 00  07 00 3D D8 00 DE 41 00 42").name, movedFace + u"A");
    expectThrowsWhenCut<AlarmEventRecord>(hex("01 00 65  02 00 4A 00"));
}

TEST(AlarmActionRecord, isCodeNameAndFlag) {
    expectBothWays(AlarmActionRecord{.code = 0x1234, .name = u"Go", .flag = true}, "34 12  04 00 47 00 6F 00  01");
    expectBothWays(AlarmActionRecord{}, "00 00  00 00  00");
    expectBothWays(AlarmActionRecord{.code = 65535, .name = longestText}, hex("FF FF") + longestWide + hex("00"));
    EXPECT_EQ(fromFields<AlarmActionRecord>("01 00  07 00 3D D8 00 DE 41 00 42  FF"),
              (AlarmActionRecord{.code = 1, .name = movedFace + u"A", .flag = true}));
    expectThrowsWhenCut<AlarmActionRecord>(hex("34 12  02 00 4A 00  01"));
}

TEST(AlarmDestinationRecord, isIdAndName) {
    expectBothWays(AlarmDestinationRecord{.id = "d1", .name = u"Jo"}, "02 00 64 31  04 00 4A 00 6F 00");
    expectBothWays(AlarmDestinationRecord{}, "00 00  00 00");
    expectBothWays(AlarmDestinationRecord{.id = std::string(65535, 'k'), .name = longestText},
                   longestNarrow + longestWide);
    EXPECT_EQ(fromFields<AlarmDestinationRecord>("00 00  07 00 3D D8 00 DE 41 00 42").name, movedFace + u"A");
    expectThrowsWhenCut<AlarmDestinationRecord>(hex("01 00 64  02 00 4A 00"));
}

TEST(ProgramActionRecord, isIdActionEventAndRecipient) {
    const char* const fields = "02 00 61 31  04 00 6D 61 69 6C  03 00 6A 61 6D  04 00 4A 00 6F 00";
    expectBothWays(ProgramActionRecord{.id = "a1", .actionName = "mail", .eventName = "jam", .recipient = u"Jo"},
                   fields);
    expectBothWays(ProgramActionRecord{}, "00 00  00 00  00 00  00 00");
    expectBothWays(ProgramActionRecord{.id = std::string(65535, 'k'),
                                       .actionName = std::string(65535, 'k'),
                                       .eventName = std::string(65535, 'k'),
                                       .recipient = longestText},
                   longestNarrow + longestNarrow + longestNarrow + longestWide);
    EXPECT_EQ(fromFields<ProgramActionRecord>("00 00  00 00  00 00  07 00 3D D8 00 DE 41 00 42").recipient,
              movedFace + u"A");
    expectThrowsWhenCut<ProgramActionRecord>(hex(fields));
}

} // namespace
} // namespace protocol
