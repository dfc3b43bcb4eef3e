#include "server/commands/RequestReader.h"

#include "protocol/estate/Printer.h"
#include "protocol/estate/Region.h"
#include "tests/support/Bytes.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using support::hex;

TEST(RequestReader, fieldsComeInTheOrderOfTheRequest) {
    const auto bytes = hex("02 00 41 42  FE FF FF FF  06 00");
    const auto request = RequestReader(bytes).read<protocol::ListPrinterRecordsRequest>();
    EXPECT_EQ(request.printerId, "AB");
    EXPECT_EQ(request.regionId, -2);
    EXPECT_EQ(request.mode, 6);
}

TEST(RequestReader, bytesAfterTheLastFieldAreLeft) {
    const auto bytes = hex("00 00  01 00 00 00  06 00  AA BB CC");
    EXPECT_EQ(RequestReader(bytes).read<protocol::ListPrinterRecordsRequest>().regionId, 1);
}

TEST(RequestReader, wideTextIsTakenAsTheUnitsThatCame) {
    const auto bytes = hex("01  05 00 00 00  08 00  FF FE 3D D8 00 DE 00 00");
    const auto request = RequestReader(bytes).read<protocol::CreateRegionRequest>();
    EXPECT_EQ(request.name, (std::u16string{0xFEFF, 0xD83D, 0xDE00, 0}));
}

TEST(RequestReader, anOddByteOfWideTextIsLostButCounted) {
    const auto bytes = hex("01  05 00 00 00  03 00  41 00 42");
    EXPECT_EQ(RequestReader(bytes).read<protocol::CreateRegionRequest>().name, u"A");
}

TEST(RequestReader, everyTruncationIsABadRequest) {
    const auto bytes = hex("02 00 41 42  FE FF FF FF  06 00");
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        const support::Bytes part(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_THROW((void)RequestReader(part).read<protocol::ListPrinterRecordsRequest>(), BadRequest) << size;
    }
}

TEST(RequestReader, aCountThatLiesIsABadRequest) {
    const auto bytes = hex("FF FF 41 42  FE FF FF FF  06 00");
    EXPECT_THROW((void)RequestReader(bytes).read<protocol::ListPrinterRecordsRequest>(), BadRequest);
}

} // namespace
} // namespace server
