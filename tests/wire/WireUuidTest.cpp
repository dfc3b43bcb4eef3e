#include "wire/WireUuid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

using wire::createUuid;
using wire::parseUuid;
using wire::toText;

namespace {

constexpr std::string_view sample = "01234567-89ab-cdef-0123-456789abcdef";

std::string refusal(std::string_view text) {
    try {
        static_cast<void>(parseUuid(text));
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "accepted";
}

} // namespace

TEST(WireUuid, aNewIdHas36CharactersAndNoUpperCaseLetter) {
    const std::string text = createUuid();
    EXPECT_EQ(text.size(), 36u);
    EXPECT_TRUE(std::none_of(text.begin(), text.end(), [](char c) { return c >= 'A' && c <= 'Z'; }));
    EXPECT_EQ(toText(parseUuid(text)), text);
}

TEST(WireUuid, aNewIdIsATimeBasedOneAndLikeNoOther) {
    const std::string first = createUuid();
    EXPECT_EQ(first[14], '1');
    EXPECT_NE(first, createUuid());
}

TEST(WireUuid, aRandomIdIsOfVersionFour) {
    EXPECT_EQ(wire::randomUuid().version(), wire::Uuid::version_random_number_based);
    EXPECT_NE(wire::randomUuid(), wire::randomUuid());
}

TEST(WireUuid, theTextHasItsDashesAfterTheBytesFourSixEightAndTen) {
    EXPECT_EQ(toText(parseUuid(sample)), sample);
}

TEST(WireUuid, bracesUpperCaseAndMissingDashesAreAccepted) {
    EXPECT_EQ(toText(parseUuid("{01234567-89ab-cdef-0123-456789abcdef}")), sample);
    EXPECT_EQ(toText(parseUuid("01234567-89AB-CDEF-0123-456789ABCDEF")), sample);
    EXPECT_EQ(toText(parseUuid("0123456789abcdef0123456789abcdef")), sample);
}

TEST(WireUuid, anEmptyOrMalformedTextIsRefused) {
    for (const std::string_view text :
         {"", "{", "01234567-89ab-cdef-0123-456789abcde", "01234567-89ab-cdef-0123-456789abcdefa",
          "01234567-89ab-cdef-0123-456789abcdeg", "0123456-789ab-cdef-0123-456789abcdef",
          "{01234567-89ab-cdef-0123-456789abcdef", "01234567-89abcdef-0123-456789abcdef"}) {
        EXPECT_EQ(refusal(text), "invalid uuid string") << text;
    }
}
