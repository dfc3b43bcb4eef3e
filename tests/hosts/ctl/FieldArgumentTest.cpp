#include "hosts/ctl/FieldArgument.h"
#include "hosts/ctl/Failure.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using ctl::parseField;

template <class T>
T value(const std::string& text) {
    return std::get<T>(parseField(text).value);
}

TEST(FieldArgument, numbersHaveTheWidthOfTheirKind) {
    EXPECT_EQ(value<std::uint8_t>("u8:255"), 255);
    EXPECT_EQ(value<std::uint16_t>("u16:65535"), 65535);
    EXPECT_EQ(value<std::uint32_t>("u32:4294967295"), 4294967295U);
}

TEST(FieldArgument, aSignedIdGoesAsU32) {
    EXPECT_EQ(value<std::uint32_t>("u32:-1"), 4294967295U);
}

TEST(FieldArgument, signedKindsTakeNegativeNumbers) {
    EXPECT_EQ(value<std::int32_t>("i32:-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(value<std::int64_t>("i64:-5"), -5);
}

TEST(FieldArgument, aNumberOutOfRangeIsAnError) {
    for (const auto* const text : {"i32:2147483648", "i64:9223372036854775808", "u8:256", "u8:-1", "u16:65536",
                                   "u32:4294967296", "u8:", "u8:1x", "f32:x"}) {
        EXPECT_THROW(parseField(text), ctl::Failure) << text;
    }
}

TEST(FieldArgument, otherKindsAreTaken) {
    EXPECT_EQ(value<float>("f32:7.5"), 7.5F);
    EXPECT_TRUE(value<bool>("bool:true"));
    EXPECT_EQ(value<std::string>("str8:a:b"), "a:b");
    EXPECT_EQ(value<std::string>("str8:"), "");
    EXPECT_EQ(value<wire::WideString>("str16:Zürich"), u"Zürich");
}

TEST(FieldArgument, noneIsAnOptionalThatIsLeftOut) {
    EXPECT_FALSE(value<bool>("none"));
}

TEST(FieldArgument, aUuidHas36Characters) {
    EXPECT_EQ(wire::toText(value<wire::Uuid>("uuid:01234567-89AB-cdef-0123-456789abcdef")),
              "01234567-89ab-cdef-0123-456789abcdef");
    EXPECT_THROW(parseField("uuid:0123456789abcdef0123456789abcdef"), ctl::Failure);
}

TEST(FieldArgument, anUnknownKindIsAnError) {
    EXPECT_THROW(parseField("u9:1"), ctl::Failure);
    EXPECT_THROW(parseField("17"), ctl::Failure);
}

TEST(FieldArgument, aTextThatNoFieldCanHoldIsAnError) {
    EXPECT_NO_THROW(parseField("str8:" + std::string(65535, 'x')));
    EXPECT_THROW(parseField("str8:" + std::string(65536, 'x')), ctl::Failure);
    EXPECT_THROW(parseField("str16:" + std::string(32768, 'x')), ctl::Failure);
}

} // namespace
