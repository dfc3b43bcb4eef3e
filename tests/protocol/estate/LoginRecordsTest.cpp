#include "protocol/estate/Login.h"
#include "tests/protocol/RecordBytes.h"

#include <gtest/gtest.h>

namespace protocol {
namespace {

TEST(LoginRequest, isThreeAndZero) {
    EXPECT_EQ(hexOf(LoginRequest{}), tidy("01 09 00 00 00  03 00  00 00"));
    EXPECT_EQ(fromFields<LoginRequest>("03 00 00 00"), LoginRequest{});
}

TEST(LoginReply, isTheStatus) {
    EXPECT_EQ(hexOf(LoginReply{.status = 2}), tidy("01 07 00 00 00  02 00"));
    EXPECT_EQ(fromFields<LoginReply>("02 00 FF").status, 2);
}

TEST(GetPublicKeyRequest, hasNoFields) {
    EXPECT_EQ(hexOf(GetPublicKeyRequest{}), tidy("01 05 00 00 00"));
}

TEST(GetPublicKeyReply, isATextAndANumber) {
    const GetPublicKeyReply reply{.text = "v", .number = 7};

    EXPECT_EQ(hexOf(reply), tidy("01 0C 00 00 00  01 00 76  07 00 00 00"));
    EXPECT_EQ(fromFields<GetPublicKeyReply>("01 00 76 07 00 00 00"), reply);
}

} // namespace
} // namespace protocol
