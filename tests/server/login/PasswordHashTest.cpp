#include "server/login/PasswordHash.h"

#include <gtest/gtest.h>

namespace server {
namespace {

TEST(PasswordHash, onlyThePasswordItselfMatches) {
    const auto hash = PasswordHash::of(u"secret");
    EXPECT_TRUE(hash.matches(u"secret"));
    EXPECT_FALSE(hash.matches(u"Secret"));
    EXPECT_FALSE(hash.matches(u""));
}

TEST(PasswordHash, equalPasswordsHaveDifferentHashes) {
    const auto one = PasswordHash::of(u"secret");
    const auto two = PasswordHash::of(u"secret");
    EXPECT_NE(one.salt, two.salt);
    EXPECT_NE(one.hash, two.hash);
    EXPECT_GE(one.iterations, 200000);
}

TEST(PasswordHash, theHashIsTheOneThatTheStandardGives) {
    PasswordHash hash{.salt = {'s', 'a', 'l', 't'}, .iterations = 1, .hash = {}};
    // PBKDF2-HMAC-SHA256 of the bytes 70 00, with one iteration.
    hash.hash = {0x81, 0x15, 0x28, 0x84, 0xDD, 0x9A, 0x20, 0x8F, 0x9B, 0xE6, 0x8D, 0xC3, 0x12, 0xD9, 0x94, 0xC0,
                 0x96, 0xFD, 0x10, 0xC8, 0x4D, 0x8C, 0xF5, 0x6A, 0x11, 0x99, 0x5F, 0x7C, 0x60, 0x4B, 0xC2, 0xB2};
    EXPECT_TRUE(hash.matches(u"p"));
}

} // namespace
} // namespace server
