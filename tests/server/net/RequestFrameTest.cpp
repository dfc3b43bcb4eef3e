#include "server/net/RequestFrame.h"

#include "server/commands/RequestReader.h"
#include "server/net/Dropped.h"
#include "tests/support/Bytes.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using support::hex;

RequestFrame parse(std::uint8_t count, const support::Bytes& data) {
    return parseRequestFrame(count, data);
}

const auto command = "00 09 00 00 00 01 00 06 00 ";

TEST(RequestFrame, aCommandAloneHasNoFields) {
    const auto data = hex("00 09 00 00 00 01 00 4E 00");
    const auto request = parse(1, data);
    EXPECT_EQ(request.opcode, 78);
    EXPECT_EQ(request.version, 1);
    EXPECT_TRUE(request.fields.empty());
}

TEST(RequestFrame, messagesAreFoundByKindAndNotByPosition) {
    const auto dataFirst = hex("01 07 00 00 00 AA BB 00 09 00 00 00 02 00 0A 00");
    const auto commandFirst = hex("00 09 00 00 00 02 00 0A 00 01 07 00 00 00 AA BB");
    for (const auto& data : {dataFirst, commandFirst}) {
        const auto request = parse(2, data);
        EXPECT_EQ(request.opcode, 10);
        EXPECT_EQ(request.version, 2);
        ASSERT_EQ(request.fields.size(), 2U);
        EXPECT_EQ(request.fields[0], 0xAA);
    }
}

TEST(RequestFrame, whatDoesNotAddUpIsDropped) {
    const std::vector<std::pair<std::uint8_t, std::string>> frames = {
        {0, ""},
        {0, command},
        {1, ""},
        {2, command},
        {1, "00 09 00 00"},
        {1, "00 04 00 00 00 01 00 06 00"},
        {1, "00 0A 00 00 00 01 00 06 00"},
        {1, "00 FF FF FF FF 01 00 06 00"},
        {1, "00 08 00 00 00 01 00 06"},
        {1, "00 0A 00 00 00 01 00 06 00 00"},
        {1, "01 05 00 00 00"},
        {1, "02 05 00 00 00"},
        {1, std::string(command) + "00"},
        {2, std::string(command) + command},
        {2, std::string("01 05 00 00 00 ") + "01 05 00 00 00"},
        {3, std::string("01 05 00 00 00 01 05 00 00 00 ") + command},
        {255, command},
    };
    for (const auto& [count, text] : frames) {
        EXPECT_THROW((void)parse(count, hex(text)), Dropped) << int{count} << ": " << text;
    }
}

} // namespace
} // namespace server
