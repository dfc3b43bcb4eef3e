#include "protocol/FieldValue.h"

#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"
#include "tests/protocol/RecordBytes.h"
#include "tests/protocol/estate/PrinterRecordBytes.h"

#include <gtest/gtest.h>

namespace protocol {
namespace {

struct Rest {
    std::int64_t eight = 0;
    float real = 0;
    wire::Uuid uuid{};
    std::optional<std::uint16_t> missing;
    std::optional<std::uint16_t> there;
    std::uint32_t four = 0;

    static constexpr auto fields =
        wireOrder(field("eight", &Rest::eight), field("real", &Rest::real), field("uuid", &Rest::uuid),
                  field("missing", &Rest::missing), field("there", &Rest::there), field("four", &Rest::four));
};

template <class T>
const T& valueOf(const FieldRecord& record, std::size_t index) {
    return std::get<T>(record.at(index).value.value);
}

TEST(FieldValue, aRecordIsReadByItsLayout) {
    wire::Message message = loaded(ordinaryPrinterFields());

    const FieldRecord record = readFields(message, layoutOf<PrinterRecord>);

    ASSERT_EQ(record.size(), 32U);
    EXPECT_EQ(record[0].name, "ip");
    EXPECT_EQ(valueOf<std::string>(record, 0), "10.0.0.7");
    EXPECT_EQ(valueOf<wire::WideString>(record, 3), u"Ahrn");
    EXPECT_EQ(valueOf<std::uint32_t>(record, 10), 515U);
    EXPECT_EQ(valueOf<std::int32_t>(record, 11), -2);
    EXPECT_EQ(valueOf<std::uint16_t>(record, 12), 258);
    EXPECT_EQ(valueOf<std::uint8_t>(record, 13), 0x30);
    EXPECT_TRUE(valueOf<bool>(record, 20));
    EXPECT_EQ(record[31].name, "auxKey");
}

TEST(FieldValue, aListOfRecordsIsAListOfTheirFields) {
    wire::Message message = loaded(support::hex("01 00 02 00 41 00 01 00 00 00 00 00 00 00"));

    const FieldRecord record = readFields(message, layoutOf<ListRegionsReply>);

    const auto& regions = valueOf<FieldList>(record, 0);
    ASSERT_EQ(regions.size(), 1U);
    EXPECT_EQ(valueOf<wire::WideString>(std::get<FieldRecord>(regions[0].value), 0), u"A");
}

TEST(FieldValue, aRecordWithinARecordKeepsItsOwnFields) {
    wire::Message message = loaded(support::hex("02 00 4E 00 00 00 30 00 00 00 01 00 69"));

    const FieldRecord record = readFields(message, layoutOf<CreateRecordReply>);

    EXPECT_EQ(record.at(0).name, "status");
    EXPECT_EQ(valueOf<wire::WideString>(valueOf<FieldRecord>(record, 0), 0), u"N");
    EXPECT_EQ(valueOf<std::string>(record, 1), "i");
}

TEST(FieldValue, theOtherKindsAreReadToo) {
    wire::Message message =
        loaded(support::hex("FE FF FF FF 00 00 C0 3F 24 00 30 66 38 65 32 61 36 34 2D 35 62 31 64 2D 34 66 30 65 2D 39"
                            "63 33 37 2D 36 61 32 64 35 31 62 37 65 34 38 30 00 01 07 00 FF FF FF FF"));

    const FieldRecord record = readFields(message, layoutOf<Rest>);

    EXPECT_EQ(valueOf<std::int64_t>(record, 0), -2);
    EXPECT_EQ(valueOf<float>(record, 1), 1.5F);
    EXPECT_EQ(wire::toText(valueOf<wire::Uuid>(record, 2)), "0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480");
    EXPECT_TRUE(std::holds_alternative<std::monostate>(record[3].value.value));
    EXPECT_EQ(valueOf<std::uint16_t>(record, 4), 7);
    EXPECT_EQ(valueOf<std::uint32_t>(record, 5), 0xFFFFFFFFU);
}

TEST(FieldValue, aMessageThatIsTooShortThrows) {
    wire::Message message = loaded(support::hex("01 00"));

    EXPECT_THROW(static_cast<void>(readFields(message, layoutOf<ListRegionsReply>)), const char*);
}

TEST(FieldValue, fieldsMakeAMessageInTheirOrder) {
    const FieldValue fields[] = {{std::uint8_t{1}},
                                 {true},
                                 {std::uint16_t{2}},
                                 {std::uint32_t{3}},
                                 {1.5F},
                                 {std::string("a")},
                                 {wire::WideString(u"b")},
                                 {FieldList{{std::uint16_t{9}}}},
                                 {std::monostate{}}};

    const auto message = makeDataMessage(fields);

    ASSERT_NE(message, nullptr);
    EXPECT_EQ(support::toHex({message->bytes().begin(), message->bytes().end()}),
              tidy("01 1C 00 00 00  01 01 02 00 03 00 00 00 00 00 C0 3F 01 00 61 02 00 62 00 01 00 09 00"));
}

TEST(FieldValue, noFieldsMakeNoMessage) {
    EXPECT_EQ(makeDataMessage(std::span<const FieldValue>{}), nullptr);
}

} // namespace
} // namespace protocol
