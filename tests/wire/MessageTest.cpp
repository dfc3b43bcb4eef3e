#include "wire/Message.h"
#include "tests/support/Bytes.h"
#include "wire/UTFConverter.h"

#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>

using support::Bytes;
using support::dataMessage;
using support::hex;
using support::toHex;
using wire::Message;
using wire::MessageKind;
using wire::WideString;

namespace {

std::string bytesOf(const Message& message) {
    return toHex({message.bytes().begin(), message.bytes().end()});
}

Message loaded(const Bytes& bytes) {
    Message message;
    message.loadMessage(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    return message;
}

Message withFields(std::string_view fields) {
    return loaded(dataMessage(hex(fields)));
}

template <typename Action>
std::string thrownText(Action action) {
    try {
        action();
    } catch (const char* text) {
        return text;
    }
    return "nothing thrown";
}

Message begun() {
    Message message;
    message.beginMessage(0);
    message.setKind(MessageKind::Data);
    return message;
}

} // namespace

TEST(Message, aCommandForOpcodeTenVersionTwoIsNineBytes) {
    EXPECT_EQ(bytesOf(*wire::makeCommandMessage(10, 2)), "00 09 00 00 00 02 00 0A 00");
}

TEST(Message, aCommandPutsTheVersionBeforeTheOpcode) {
    EXPECT_EQ(bytesOf(*wire::makeCommandMessage(22, 1)), "00 09 00 00 00 01 00 16 00");
}

TEST(Message, aDataMessageWithoutFieldsIsFiveBytes) {
    Message message = begun();
    message.rewind();
    EXPECT_EQ(bytesOf(message), "01 05 00 00 00");
}

TEST(Message, aNewMessageIsEmptyAndNotRewound) {
    const Message message;
    EXPECT_EQ(message.size(), 0u);
    EXPECT_EQ(message.cursor(), 0u);
    EXPECT_FALSE(message.rewound());
}

TEST(Message, aMessageUnderConstructionCarriesItsHintUntilItIsRewound) {
    Message message;
    message.beginMessage(7);
    EXPECT_EQ(bytesOf(message), "00 0C 00 00 00");
    message.rewind();
    EXPECT_EQ(bytesOf(message), "00 05 00 00 00");
}

TEST(Message, numbersAreWrittenLittleEndian) {
    Message message = begun();
    message.putByte(0x12);
    message.putUInt16(0x3456);
    message.putUInt32(0x789ABCDE);
    message.putFloat(1.5f);
    message.rewind();
    EXPECT_EQ(bytesOf(message), "01 10 00 00 00 12 56 34 DE BC 9A 78 00 00 C0 3F");
}

TEST(Message, textsCarryTheirLengthInBytes) {
    Message message = begun();
    message.putString("abc");
    message.putWideString(u"\u00e9z");
    message.rewind();
    EXPECT_EQ(bytesOf(message), "01 10 00 00 00 03 00 61 62 63 04 00 E9 00 7A 00");
}

TEST(Message, anEmptyTextIsTwoZeroBytes) {
    Message narrow = begun();
    narrow.putString("");
    narrow.rewind();
    EXPECT_EQ(bytesOf(narrow), "01 07 00 00 00 00 00");
    Message wide = begun();
    wide.putWideString(u"");
    wide.rewind();
    EXPECT_EQ(bytesOf(wide), "01 07 00 00 00 00 00");
}

TEST(Message, aCharacterAboveTheBasicPlaneCountsFourBytes) {
    Message message = begun();
    message.putWideString(WideString{0xD83D, 0xDE00});
    message.rewind();
    EXPECT_EQ(bytesOf(message), "01 0B 00 00 00 04 00 3E D8 00 DE");
}

TEST(Message, theCountOfAWideTextIsThatOfTheConvertedText) {
    Message message = begun();
    message.putWideString(WideString{u'a', 0xDC00, u'b'});
    message.rewind();
    EXPECT_EQ(bytesOf(message), "01 0B 00 00 00 04 00 61 00 62 00");
}

TEST(Message, aWideTextOfTwiceThatPlaneIsMovedOnByEachPass) {
    Message written = begun();
    written.putWideString(WideString{0xD83D, 0xDE00});
    written.rewind();
    Message read = loaded({written.bytes().begin(), written.bytes().end()});
    EXPECT_EQ(read.getWideString(), (WideString{0xD83F, 0xDE00}));
}

TEST(Message, aStringOf65536BytesCountsZeroAndIsWrittenAll) {
    Message message = begun();
    message.putString(std::string(65536, 'x'));
    message.rewind();
    ASSERT_EQ(message.size(), 5u + 2u + 65536u);
    EXPECT_EQ(toHex({message.bytes().begin(), message.bytes().begin() + 8}), "01 07 00 01 00 00 00 78");
    EXPECT_EQ(message.bytes().back(), 'x');
}

TEST(Message, aWideTextOf32768UnitsCountsZeroAndIsWrittenAll) {
    Message message = begun();
    message.putWideString(WideString(32768, u'x'));
    message.rewind();
    EXPECT_EQ(message.size(), 5u + 2u + 65536u);
    EXPECT_EQ(message.bytes()[5], 0);
    EXPECT_EQ(message.bytes()[6], 0);
}

TEST(Message, readingTheLastByteSucceeds) {
    Message message = withFields("7F");
    EXPECT_EQ(message.getByte(), 0x7F);
    EXPECT_EQ(message.remaining(), 0u);
}

TEST(Message, readingOneByteMoreThanThereIsThrows) {
    Message message = withFields("7F");
    static_cast<void>(message.getByte());
    EXPECT_EQ(thrownText([&] { static_cast<void>(message.getByte()); }), "Reading outside scope");
}

TEST(Message, numbersThatDontFitIntoTheRestThrowAndLeaveTheCursor) {
    Message message = withFields("01 02 03");
    EXPECT_EQ(thrownText([&] { static_cast<void>(message.getUInt32()); }), "Reading outside scope");
    EXPECT_EQ(thrownText([&] { static_cast<void>(message.getFloat()); }), "Reading outside scope");
    EXPECT_EQ(message.getUInt16(), 0x0201);
    EXPECT_EQ(thrownText([&] { static_cast<void>(message.getUInt16()); }), "Reading outside scope");
    EXPECT_EQ(message.getByte(), 3);
}

TEST(Message, numbersAreReadInOrder) {
    Message message = withFields("12 56 34 DE BC 9A 78 00 00 C0 3F");
    EXPECT_EQ(message.getByte(), 0x12);
    EXPECT_EQ(message.getUInt16(), 0x3456);
    EXPECT_EQ(message.getUInt32(), 0x789ABCDEu);
    EXPECT_EQ(message.getFloat(), 1.5f);
}

TEST(Message, loadingFromFourBytesThrows) {
    const Bytes bytes = hex("01 05 00 00");
    Message message;
    EXPECT_EQ(thrownText([&] { message.loadMessage(bytes.data(), 4); }), "Reading out of scope");
}

TEST(Message, loadingAHeaderWhoseLengthExceedsWhatIsThereThrows) {
    EXPECT_EQ(thrownText([] { static_cast<void>(loaded(hex("01 07 00 00 00 41"))); }), "Reading out of scope");
}

TEST(Message, loadingAHeaderWhoseLengthIsBelowFiveThrows) {
    EXPECT_EQ(thrownText([] { static_cast<void>(loaded(hex("01 04 00 00 00 41"))); }), "Reading out of scope");
}

TEST(Message, loadingTakesOnlyTheMessagesOwnLength) {
    const Message message = loaded(hex("01 06 00 00 00 41 42 43"));
    EXPECT_EQ(bytesOf(message), "01 06 00 00 00 41");
    EXPECT_EQ(message.cursor(), 5u);
    EXPECT_TRUE(message.rewound());
}

TEST(Message, loadingNothingLeavesTheMessageAsItIs) {
    Message message = withFields("41");
    message.loadMessage(nullptr, 100);
    EXPECT_EQ(message.getByte(), 0x41);
}

TEST(Message, loadingTakesTheKindFromTheHeaderWhateverItIs) {
    EXPECT_EQ(static_cast<int>(loaded(hex("C8 05 00 00 00")).kind()), 200);
}

TEST(Message, afterRewindANumberLeavesTheMessageByteForByteTheSame) {
    Message message = begun();
    message.putByte(1);
    message.rewind();
    message.putUInt32(5);
    EXPECT_EQ(bytesOf(message), "01 06 00 00 00 01");
}

TEST(Message, afterRewindEveryWriteVanishes) {
    Message message = begun();
    message.rewind();
    message.putByte(1);
    message.putUInt16(1);
    message.putFloat(1);
    message.putString("a");
    message.putWideString(u"a");
    message.putWideString(WideString{0xD83D, 0xDE00});
    EXPECT_EQ(bytesOf(message), "01 05 00 00 00");
}

TEST(Message, afterRewindThereIsNoRoomToFill) {
    Message message = begun();
    message.putByte(1);
    message.rewind();
    EXPECT_TRUE(message.extend(3).empty());
    EXPECT_EQ(bytesOf(message), "01 06 00 00 00 01");
}

TEST(Message, roomToFillStandsAtTheEnd) {
    Message message = begun();
    message.putByte(1);
    const std::span<std::uint8_t> room = message.extend(2);
    ASSERT_EQ(room.size(), 2u);
    room[0] = 2;
    room[1] = 3;
    message.putByte(4);
    message.rewind();
    EXPECT_EQ(bytesOf(message), "01 09 00 00 00 01 02 03 04");
}

TEST(Message, rewindingTwiceChangesNothing) {
    Message message = begun();
    message.putByte(1);
    message.rewind();
    message.rewind();
    EXPECT_EQ(bytesOf(message), "01 06 00 00 00 01");
}

TEST(Message, rewindingAMessageThatWasNeverBegunGivesABareHeader) {
    Message message;
    message.setKind(MessageKind::Data);
    message.rewind();
    EXPECT_EQ(bytesOf(message), "01 05 00 00 00");
}

TEST(Message, beginningAgainEmptiesTheMessageAndKeepsItsMemory) {
    Message message = begun();
    message.putString(std::string(1000, 'x'));
    message.rewind();
    const std::uint32_t before = message.capacity();
    message.beginMessage(3);
    message.putByte(9);
    message.rewind();
    EXPECT_EQ(bytesOf(message), "01 06 00 00 00 09");
    EXPECT_EQ(message.capacity(), before);
}

TEST(Message, aRightHintMakesOneAllocationEnough) {
    Message message;
    message.beginMessage(300);
    EXPECT_EQ(message.capacity(), 305u);
    message.putString(std::string(298, 'x'));
    EXPECT_EQ(message.capacity(), 305u);
    EXPECT_EQ(message.size(), 305u);
}

TEST(Message, aHintThatCannotBeReservedFailsAsAContainerDoes) {
    Message message;
    try {
        message.beginMessage(0xFFFFFFFF);
        FAIL() << "nothing thrown";
    } catch (const std::length_error& error) {
        EXPECT_STREQ(error.what(), "vector<T> too long");
    }
}

TEST(Message, aStringWhoseCountRunsPastTheEndThrowsAndLeavesTheCursor) {
    Message message = withFields("03 00 41 42");
    EXPECT_EQ(thrownText([&] { static_cast<void>(message.getString()); }), "Reading outside scope");
    EXPECT_EQ(thrownText([&] { static_cast<void>(message.getWideString()); }), "Reading outside scope");
    EXPECT_EQ(message.getUInt16(), 3);
}

TEST(Message, aStringWithoutRoomForItsCountThrows) {
    Message message = withFields("03");
    EXPECT_EQ(thrownText([&] { static_cast<void>(message.getString()); }), "Reading outside scope");
    EXPECT_EQ(thrownText([&] { static_cast<void>(message.getWideString()); }), "Reading outside scope");
    EXPECT_EQ(message.getByte(), 3);
}

TEST(Message, aStringMayFillTheRestOfTheMessage) {
    Message message = withFields("02 00 41 42");
    EXPECT_EQ(message.getString(), "AB");
}

TEST(Message, aStringPassesZeroBytesThrough) {
    Message message = withFields("03 00 41 00 FF");
    EXPECT_EQ(message.getString(), std::string("A\0\xFF", 3));
}

TEST(Message, aWideTextEndsAtItsFirstZeroUnitButIsPassedOverWhole) {
    Message message = withFields("06 00 41 00 00 00 42 00 07");
    EXPECT_EQ(message.getWideString(), u"A");
    EXPECT_EQ(message.getByte(), 7);
}

TEST(Message, aWideTextOfAnOddCountLosesItsLastByte) {
    Message message = withFields("03 00 41 00 42 07");
    EXPECT_EQ(message.getWideString(), u"A");
    EXPECT_EQ(message.getByte(), 7);
}

TEST(Message, aMarkAtTheStartOfAWideTextIsTakenAsOne) {
    Message message = withFields("04 00 FE FF 41 00 04 00 FF FE 00 41");
    EXPECT_EQ(message.getWideString(), u"A");
    EXPECT_EQ(message.getWideString(), u"A");
}

TEST(Message, writingAWideTextMovesTheCursorToWhereItBegins) {
    Message message = begun();
    message.putByte(1);
    message.putWideString(u"a");
    EXPECT_EQ(message.cursor(), 6u);
}

TEST(Message, readingIntoATextReusesItsMemory) {
    Message message = withFields("03 00 61 62 63 06 00 61 00 62 00 63 00");
    std::string narrow;
    narrow.reserve(500);
    const char* const narrowMemory = narrow.data();
    message.getString(narrow);
    EXPECT_EQ(narrow, "abc");
    EXPECT_EQ(narrow.data(), narrowMemory);
    WideString wide;
    wide.reserve(500);
    const char16_t* const wideMemory = wide.data();
    message.getWideString(wide);
    EXPECT_EQ(wide, u"abc");
    EXPECT_EQ(wide.data(), wideMemory);
}

TEST(Message, theShortWayForPlainWideTextGivesWhatTheConverterGives) {
    constexpr char16_t samples[] = {u'a', 0, 0xD7FF, 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xFEFF, 0xFFFE, 0x8000, 1};
    for (std::size_t length = 1; length < 11; ++length) {
        for (std::size_t position = 0; position < length; ++position) {
            for (const char16_t sample : samples) {
                WideString text(length, u'x');
                text[position] = sample;
                const unicode::UTFConverter converter(text);
                Message written = begun();
                written.putWideString(text);
                written.rewind();
                const auto units = converter.toUTF16(false, 3);
                const auto* const encoded = reinterpret_cast<const std::uint8_t*>(units.get());
                const Bytes expected(encoded, encoded + converter.byteLength(false));
                EXPECT_EQ(toHex({written.bytes().begin() + 7, written.bytes().end()}), toHex(expected));

                Bytes raw(2 + 2 * length);
                raw[0] = static_cast<std::uint8_t>(2 * length);
                std::memcpy(&raw[2], text.data(), 2 * length);
                Message read = loaded(dataMessage(raw));
                EXPECT_EQ(read.getWideString(), unicode::UTFConverter(text.c_str(), 3).toWideString());
            }
        }
    }
}

TEST(Message, aViewOfAStringPointsIntoTheMessage) {
    Message message = withFields("02 00 41 42 05");
    const std::string_view view = message.getStringView();
    EXPECT_EQ(view, "AB");
    EXPECT_EQ(reinterpret_cast<const std::uint8_t*>(view.data()), message.bytes().data() + 7);
    EXPECT_EQ(message.getByte(), 5);
}
