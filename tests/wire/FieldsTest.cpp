#include "wire/Fields.h"
#include "tests/support/Bytes.h"

#include <gtest/gtest.h>

#include <stdexcept>

using support::dataMessage;
using support::hex;
using support::toHex;
using wire::Message;
using wire::WideString;

namespace {

enum class Colour : std::uint16_t { red = 0x0102 };

template <typename T>
std::string written(const T& value) {
    Message message;
    message.beginMessage(wire::encodedSize(value));
    wire::put(message, value);
    message.rewind();
    return toHex({message.bytes().begin() + 5, message.bytes().end()});
}

template <typename T>
T read(std::string_view fields) {
    const support::Bytes bytes = dataMessage(hex(fields));
    Message message;
    message.loadMessage(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    T value{};
    wire::get(message, value);
    EXPECT_EQ(message.remaining(), 0u);
    return value;
}

wire::Uuid sampleUuid() {
    return wire::parseUuid("01234567-89ab-cdef-0123-456789abcdef");
}

constexpr std::string_view sampleUuidBytes = "24 00 30 31 32 33 34 35 36 37 2D 38 39 61 62 2D 63 64 65 66 2D "
                                             "30 31 32 33 2D 34 35 36 37 38 39 61 62 63 64 65 66";

} // namespace

TEST(Fields, aBoolIsWrittenAsOneOrZeroAndReadFromAnyByte) {
    EXPECT_EQ(written(true), "01");
    EXPECT_EQ(written(false), "00");
    EXPECT_TRUE(read<bool>("31"));
    EXPECT_FALSE(read<bool>("00"));
}

TEST(Fields, aSignedNumberTravelsAsItsBytes) {
    EXPECT_EQ(written(std::int32_t{-2}), "FE FF FF FF");
    EXPECT_EQ(read<std::int32_t>("FE FF FF FF"), -2);
    EXPECT_EQ(read<std::uint32_t>("FE FF FF FF"), 0xFFFFFFFEu);
}

TEST(Fields, a64BitNumberSendsItsLow32BitsAndIsSignExtended) {
    EXPECT_EQ(written(std::int64_t{0x1122334455667788}), "88 77 66 55");
    EXPECT_EQ(read<std::int64_t>("88 77 66 55"), 0x55667788);
    EXPECT_EQ(read<std::int64_t>("FF FF FF FF"), -1);
    EXPECT_EQ(read<std::uint64_t>("FF FF FF FF"), 0xFFFFFFFFFFFFFFFFu);
}

TEST(Fields, smallNumbersAndFloatsKeepTheirWidth) {
    EXPECT_EQ(written(std::uint8_t{7}), "07");
    EXPECT_EQ(written(std::uint16_t{7}), "07 00");
    EXPECT_EQ(written(std::int16_t{-1}), "FF FF");
    EXPECT_EQ(written(1.5f), "00 00 C0 3F");
    EXPECT_EQ(read<std::int16_t>("FF FF"), -1);
    EXPECT_EQ(read<float>("00 00 C0 3F"), 1.5f);
}

TEST(Fields, anEnumerationTravelsAsItsNumber) {
    EXPECT_EQ(written(Colour::red), "02 01");
    EXPECT_EQ(read<Colour>("02 01"), Colour::red);
}

TEST(Fields, textsAreWrittenByTheirType) {
    EXPECT_EQ(written(std::string("ab")), "02 00 61 62");
    EXPECT_EQ(written(WideString(u"ab")), "04 00 61 00 62 00");
    EXPECT_EQ(read<std::string>("02 00 61 62"), "ab");
    EXPECT_EQ(read<WideString>("04 00 61 00 62 00"), u"ab");
}

TEST(Fields, aUuidTravelsAsLowerCaseText) {
    EXPECT_EQ(written(sampleUuid()), sampleUuidBytes);
    EXPECT_EQ(read<wire::Uuid>(sampleUuidBytes), sampleUuid());
}

TEST(Fields, anEmptyIdReadAsAUuidIsAnError) {
    EXPECT_THROW(read<wire::Uuid>("00 00"), std::runtime_error);
}

TEST(Fields, anOptionalValueFollowsItsFlag) {
    EXPECT_EQ(written(std::optional<std::uint16_t>(5)), "01 05 00");
    EXPECT_EQ(written(std::optional<std::uint16_t>()), "00");
    EXPECT_EQ(read<std::optional<std::uint16_t>>("01 05 00"), 5);
    EXPECT_EQ(read<std::optional<std::uint16_t>>("00"), std::nullopt);
}

TEST(Fields, aListCarriesItsCountAndItsElements) {
    EXPECT_EQ(written(std::vector<std::string>{"a", "bc"}), "02 00 01 00 61 02 00 62 63");
    EXPECT_EQ(read<std::vector<std::string>>("02 00 01 00 61 02 00 62 63"), (std::vector<std::string>{"a", "bc"}));
    EXPECT_EQ(read<std::vector<std::string>>("00 00"), std::vector<std::string>{});
}

TEST(Fields, readingAListAgainReplacesIt) {
    const support::Bytes bytes = dataMessage(hex("01 00 07"));
    Message message;
    message.loadMessage(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    std::vector<std::uint8_t> values{1, 2, 3};
    wire::get(message, values);
    EXPECT_EQ(values, std::vector<std::uint8_t>{7});
}

TEST(Fields, aListWhoseCountLiesThrowsWithoutTakingTheMemoryItAsksFor) {
    const support::Bytes bytes = dataMessage(hex("FF FF 07"));
    Message message;
    message.loadMessage(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    std::vector<std::uint8_t> values;
    EXPECT_THROW(wire::get(message, values), const char*);
    EXPECT_LT(values.capacity(), 100u);
}

TEST(Fields, theSizeHintCountsEachKindOfField) {
    EXPECT_EQ(wire::encodedSize(std::uint8_t{1}), 1u);
    EXPECT_EQ(wire::encodedSize(true), 1u);
    EXPECT_EQ(wire::encodedSize(std::uint16_t{1}), 2u);
    EXPECT_EQ(wire::encodedSize(std::uint32_t{1}), 4u);
    EXPECT_EQ(wire::encodedSize(std::int64_t{1}), 4u);
    EXPECT_EQ(wire::encodedSize(1.0f), 4u);
    EXPECT_EQ(wire::encodedSize(std::string("abc")), 5u);
    EXPECT_EQ(wire::encodedSize(WideString(u"abc")), 8u);
    EXPECT_EQ(wire::encodedSize(sampleUuid()), 32u);
    EXPECT_EQ(wire::encodedSize(std::optional<std::uint16_t>(1)), 3u);
    EXPECT_EQ(wire::encodedSize(std::optional<std::uint16_t>()), 1u);
    EXPECT_EQ(wire::encodedSize(std::vector<std::uint16_t>{1, 2}), 6u);
}
