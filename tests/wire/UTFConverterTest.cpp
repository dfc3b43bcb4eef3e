#include "wire/UTFConverter.h"
#include "tests/support/Bytes.h"

#include <gtest/gtest.h>

#include <cstring>

using support::toHex;
using unicode::UTFConverter;
using wire::WideString;

namespace {

support::Bytes encoded(const UTFConverter& converter, bool withBOM, int order) {
    const auto units = converter.toUTF16(withBOM, order);
    support::Bytes bytes(converter.byteLength(withBOM) + 2);
    std::memcpy(bytes.data(), units.get(), bytes.size());
    return bytes;
}

} // namespace

TEST(UTFConverter, anEmptyTextEncodesToAZeroUnitAndHasByteLengthZero) {
    const UTFConverter converter(u"");
    EXPECT_EQ(converter.byteLength(false), 0u);
    EXPECT_EQ(toHex(encoded(converter, false, 3)), "00 00");
}

TEST(UTFConverter, aNullPointerGivesAnEmptyText) {
    const UTFConverter converter(nullptr, 3);
    EXPECT_EQ(converter.toWideString(), u"");
}

TEST(UTFConverter, aLoneLowSurrogateDisappears) {
    EXPECT_EQ(UTFConverter(WideString{u'a', 0xDC00, u'b'}).toWideString(), u"ab");
}

TEST(UTFConverter, aHighSurrogateAtTheVeryEndDisappears) {
    EXPECT_EQ(UTFConverter(WideString{u'a', 0xD800}).toWideString(), u"a");
}

TEST(UTFConverter, aHighSurrogateBeforeAnythingElseBecomesAReplacementAndTheNextUnitStays) {
    EXPECT_EQ(UTFConverter(WideString{0xD800, u'b'}).toWideString(), u"\xFFFD"
                                                                     u"b");
}

TEST(UTFConverter, twoHighSurrogatesAndALowOneAreAReplacementAndAPair) {
    EXPECT_EQ(UTFConverter(WideString{0xD83D, 0xD83D, 0xDE00}).toWideString(), (WideString{0xFFFD, 0xD83E, 0xDE00}));
}

TEST(UTFConverter, anALittleEndianIsFortyOneZeroAndBigEndianZeroFortyOne) {
    const UTFConverter converter(u"A");
    EXPECT_EQ(toHex(encoded(converter, false, 3)), "41 00 00 00");
    EXPECT_EQ(toHex(encoded(converter, false, 2)), "00 41 00 00");
}

TEST(UTFConverter, orderZeroIsBigEndianAndOrderOneIsTheMachines) {
    const UTFConverter converter(u"A");
    EXPECT_EQ(toHex(encoded(converter, false, 0)), "00 41 00 00");
    EXPECT_EQ(toHex(encoded(converter, false, 1)), "41 00 00 00");
}

TEST(UTFConverter, aMarkInFrontIsWrittenUnswapped) {
    const UTFConverter converter(u"A");
    EXPECT_EQ(toHex(encoded(converter, true, 3)), "FE FF 41 00 00 00");
    EXPECT_EQ(toHex(encoded(converter, true, 2)), "FF FE 00 41 00 00");
    EXPECT_EQ(converter.byteLength(true), 4u);
}

TEST(UTFConverter, theUnitFFFEAsksForLittleEndianWhateverTheArgumentSays) {
    const WideString units{0xFFFE, u'A'};
    EXPECT_EQ(UTFConverter(units.c_str(), 2).toWideString(), u"A");
}

TEST(UTFConverter, theUnitFEFFAsksForSwappingTheReverseOfWhatAMarkUsuallySays) {
    const WideString units{0xFEFF, 0x4100};
    EXPECT_EQ(UTFConverter(units.c_str(), 3).toWideString(), u"A");
}

TEST(UTFConverter, aMarkAnywhereElseIsText) {
    EXPECT_EQ(UTFConverter(WideString{u'A', 0xFEFF}).toWideString(), (WideString{u'A', 0xFEFF}));
}

TEST(UTFConverter, swappedUnitsAreReadInTheirOrder) {
    const WideString units{0x4100, 0x4200};
    EXPECT_EQ(UTFConverter(units.c_str(), 2).toWideString(), u"AB");
}

TEST(UTFConverter, aZeroUnitEndsTheText) {
    EXPECT_EQ(UTFConverter(WideString{u'a', 0, u'b'}).toWideString(), u"a");
}

TEST(UTFConverter, aCharacterOutsideTheBasicPlaneComesOutFourHundredHexFurtherOn) {
    const WideString grinning{0xD83D, 0xDE00}; // U+1F600
    const WideString later{0xD83E, 0xDE00};    // U+1FA00
    EXPECT_EQ(UTFConverter(grinning).toWideString(), later);
    EXPECT_EQ(UTFConverter(grinning).byteLength(false), 4u);
}

TEST(UTFConverter, theLastCharactersOfUnicodeFallOverTheEndAndAreReplaced) {
    EXPECT_EQ(UTFConverter(WideString{0xDBFF, 0xDC00}).toWideString(), u"\xFFFD");
    EXPECT_EQ(UTFConverter(WideString{0xDBFF, 0xDC00}).byteLength(false), 2u);
}
