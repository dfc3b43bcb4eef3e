#include "protocol/WireOrder.h"

#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"
#include "tests/protocol/RecordBytes.h"

#include <gtest/gtest.h>

namespace protocol {
namespace {

struct Inner {
    std::uint8_t number = 0;
    std::string text;

    static constexpr auto fields = wireOrder(field("number", &Inner::number), field("text", &Inner::text));

    bool operator==(const Inner&) const = default;
};

struct OnlyId {
    wire::Uuid id{};

    static constexpr auto fields = wireOrder(field("id", &OnlyId::id));
};

struct Everything {
    std::uint8_t byte = 0;
    bool flag = false;
    std::uint16_t two = 0;
    std::uint32_t four = 0;
    std::int32_t signedFour = 0;
    std::int64_t eight = 0;
    float real = 0;
    std::string text;
    wire::WideString wide;
    wire::Uuid uuid{};
    std::optional<std::uint16_t> perhaps;
    std::vector<std::uint16_t> numbers;
    std::vector<Inner> records;
    Inner inner;

    static constexpr auto fields =
        wireOrder(field("byte", &Everything::byte), field("flag", &Everything::flag), field("two", &Everything::two),
                  field("four", &Everything::four), field("signedFour", &Everything::signedFour),
                  field("eight", &Everything::eight), field("real", &Everything::real),
                  field("text", &Everything::text), field("wide", &Everything::wide), field("uuid", &Everything::uuid),
                  field("perhaps", &Everything::perhaps), field("numbers", &Everything::numbers),
                  field("records", &Everything::records), field("inner", &Everything::inner));

    bool operator==(const Everything&) const = default;
};

Everything sample() {
    Everything all;
    all.byte = 0x12;
    all.flag = true;
    all.two = 0x3456;
    all.four = 0x789ABCDE;
    all.signedFour = -1;
    all.eight = -2;
    all.real = 1.5F;
    all.text = "ab";
    all.wide = u"c";
    all.uuid = wire::parseUuid("0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480");
    all.perhaps = 7;
    all.numbers = {1, 2};
    all.records = {{1, "x"}, {2, ""}};
    all.inner = {3, "y"};
    return all;
}

constexpr const char* sampleFields =
    "12 01 56 34 DE BC 9A 78 FF FF FF FF FE FF FF FF 00 00 C0 3F 02 00 61 62 02 00 63 00"
    "24 00 30 66 38 65 32 61 36 34 2D 35 62 31 64 2D 34 66 30 65 2D 39 63 33 37 2D"
    "36 61 32 64 35 31 62 37 65 34 38 30"
    "01 07 00 02 00 01 00 02 00 02 00 01 01 00 78 02 00 00 03 01 00 79";

TEST(WireOrder, everyKindIsWrittenAsItsTypeTells) {
    EXPECT_EQ(hexOf(sample()), tidy("01 5D 00 00 00" + std::string(sampleFields)));
}

TEST(WireOrder, theAppendingWriterGivesTheSameBytes) {
    wire::Message message;
    message.beginMessage(0);
    write(message, sample());

    const auto bytes = message.bytes().subspan(wire::Message::headerSize);
    EXPECT_EQ(support::toHex({bytes.begin(), bytes.end()}), tidy(sampleFields));
}

TEST(WireOrder, everyKindIsReadAsItsTypeTells) {
    EXPECT_EQ(fromFields<Everything>(sampleFields), sample());
}

TEST(WireOrder, aMissingOptionalIsOneByte) {
    Everything all = sample();
    all.perhaps.reset();

    EXPECT_EQ(fromFields<Everything>(support::hex(hexOf(all).substr(15))), all);
    EXPECT_EQ(hexOf(all).size() + 6, hexOf(sample()).size());
}

TEST(WireOrder, readingIntoAUsedRecordLeavesNothingOfItsFormerContent) {
    Everything used = sample();
    used.numbers = {9, 9, 9, 9};
    used.records = {{9, "long former text"}, {9, "another"}, {9, "third"}};
    used.text = "former text that is longer than what comes";
    wire::Message message = loaded(support::hex(sampleFields));

    read(message, used);

    EXPECT_EQ(used, sample());
}

TEST(WireOrder, readingIntoAUsedRecordKeepsTheMemoryOfItsTexts) {
    Inner used{0, std::string(1000, 'x')};
    const char* const memory = used.text.data();
    wire::Message message = loaded(support::hex("01 02 00 61 62"));

    read(message, used);

    EXPECT_EQ(used.text, "ab");
    EXPECT_EQ(used.text.data(), memory);
}

TEST(WireOrder, aTooShortMessageThrowsReadingOutsideScopeAtEveryByte) {
    const support::Bytes fields = support::hex(sampleFields);
    for (std::size_t length = 0; length < fields.size(); ++length) {
        const support::Bytes cut(fields.begin(), fields.begin() + static_cast<std::ptrdiff_t>(length));
        try {
            static_cast<void>(fromFields<Everything>(cut));
            ADD_FAILURE() << length << " bytes were enough";
        } catch (const char* text) {
            EXPECT_STREQ(text, "Reading outside scope") << length;
        }
    }
}

TEST(WireOrder, aTextThatTheWireChangesIsChangedAsAMessageChangesIt) {
    Everything all = sample();
    all.wide = u"a\U0001F600";

    wire::Message message;
    message.beginMessage(0);
    write(message, all);
    const auto bytes = message.bytes().subspan(wire::Message::headerSize);

    EXPECT_EQ(hexOf(all).substr(15), support::toHex({bytes.begin(), bytes.end()}));
    EXPECT_NE(hexOf(all).find("06 00 61 00 3E D8 00 DE"), std::string::npos);
}

TEST(WireOrder, aListThatAnnouncesMoreThanThereIsThrows) {
    EXPECT_THROW(static_cast<void>(fromFields<ListRegionsReply>("FF FF 00 00")), const char*);
}

TEST(WireOrder, aUuidThatIsNoneThrowsInvalidUuidString) {
    try {
        static_cast<void>(fromFields<OnlyId>("00 00"));
        FAIL() << "an empty id was taken";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "invalid uuid string");
    }
}

TEST(WireOrder, theSizeToReserveCountsAUuidAsThirtyTwo) {
    EXPECT_EQ(wire::encodedSize(sample()), 0x5DU - 5U - 6U);
}

TEST(WireOrder, aMessageIsBuiltWithASingleAllocation) {
    const auto message = makeDataMessage(sample());

    EXPECT_EQ(message->size(), message->capacity());
    EXPECT_TRUE(message->rewound());
}

TEST(WireOrder, forEachFieldVisitsNamesAndValuesInOrder) {
    const Inner inner{5, "v"};
    std::vector<std::string> seen;
    forEachField(inner, [&]<class T>(std::string_view name, const T& value) {
        if constexpr (std::is_same_v<T, std::string>) {
            seen.push_back(std::string(name) + "=" + value);
        } else {
            seen.push_back(std::string(name) + "=" + std::to_string(value));
        }
    });

    EXPECT_EQ(seen, (std::vector<std::string>{"number=5", "text=v"}));
}

TEST(WireOrder, forEachFieldCanChangeTheRecord) {
    Inner inner{5, "v"};
    forEachField(inner, []<class T>(std::string_view, T& value) { value = T{}; });

    EXPECT_EQ(inner, Inner{});
}

TEST(WireOrder, aLayoutNamesItsRecordAndTellsEachKind) {
    const RecordLayout& layout = layoutOf<Everything>;
    std::vector<std::string_view> kinds;
    for (const FieldInfo& info : layout.fields) {
        kinds.push_back(nameOf(info.kind));
    }

    EXPECT_EQ(layout.name, "Everything");
    EXPECT_EQ(kinds, (std::vector<std::string_view>{"u8", "bool", "u16", "u32", "i32", "i64", "f32", "str8", "str16",
                                                    "uuid", "optional", "list", "list", "record"}));
    EXPECT_EQ(layout.fields[10].elementKind, FieldKind::u16);
    EXPECT_EQ(layout.fields[12].elementKind, FieldKind::record);
    EXPECT_EQ(layout.fields[12].element, &layoutOf<Inner>);
    EXPECT_EQ(layout.fields[13].element, &layoutOf<Inner>);
}

TEST(WireOrder, aRecordWithinARecordStandsInItsPlace) {
    const RecordLayout& layout = layoutOf<CreateRecordRequest>;

    ASSERT_EQ(layout.fields.size(), 2U);
    EXPECT_EQ(layout.fields[1].element->name, "PrinterRecord");
    EXPECT_EQ(layout.fields[1].element->fields.size(), 32U);
}

} // namespace
} // namespace protocol
