#include "protocol/drivers/Driver.h"
#include "protocol/drivers/DriverBrand.h"
#include "protocol/drivers/DriverDeployment.h"
#include "protocol/drivers/DriverModel.h"
#include "protocol/drivers/OperatingSystem.h"
#include "tests/protocol/RecordBytes.h"

#include <gtest/gtest.h>

namespace protocol {
namespace {

const wire::WideString grinning = u"\U0001F600"; // on the wire 3D D8 00 DE
const wire::WideString movedUp = u"\U0001FA00";  // what a console makes of it

const support::Bytes longest8 = support::hex("FF FF") + repeated(65535, "69");
const support::Bytes longest16 = support::hex("FE FF") + repeated(32767, "4E 00");
const wire::WideString longestWide(32767, u'N');

// Checks the record against these fields, in both directions.
template <class R>
void expectRecord(const R& record, const std::string& fields) {
    EXPECT_EQ(hexOf(record), support::toHex(support::dataMessage(support::hex(fields))));
    EXPECT_EQ(fromFields<R>(fields), record);
}

TEST(DriverBrandRecord, isIdAndName) {
    expectRecord(DriverBrandRecord{.brandId = "b1", .name = u"Hä"}, "02 00 62 31  04 00 48 00 E4 00");
    expectRecord(DriverBrandRecord{}, "00 00  00 00");
}

TEST(DriverBrandRecord, readsTextOfEveryLength) {
    EXPECT_EQ(fromFields<DriverBrandRecord>("01 00 62  04 00 3D D8 00 DE").name, movedUp);
    EXPECT_EQ(fromFields<DriverBrandRecord>("01 00 62  03 00 48 00 E4").name, u"H");
    EXPECT_EQ(fromFields<DriverBrandRecord>(longest8 + longest16),
              (DriverBrandRecord{.brandId = std::string(65535, 'i'), .name = longestWide}));
    EXPECT_EQ(fromFields<DriverBrandRecord>("01 00 62  02 00 48 00  AA BB CC"),
              (DriverBrandRecord{.brandId = "b", .name = u"H"}));
}

TEST(DriverModelRecord, isIdNameAndWhetherItIsVisible) {
    expectRecord(DriverModelRecord{.modelId = "m1", .name = u"Fo", .visible = true},
                 "02 00 6D 31  04 00 46 00 6F 00  01");
    expectRecord(DriverModelRecord{}, "00 00  00 00  00");
}

TEST(DriverModelRecord, readsTextOfEveryLengthAndAnyByteAsVisible) {
    EXPECT_EQ(fromFields<DriverModelRecord>("00 00  04 00 3D D8 00 DE  00").name, movedUp);
    EXPECT_EQ(fromFields<DriverModelRecord>("00 00  03 00 46 00 6F  31"),
              (DriverModelRecord{.modelId = {}, .name = u"F", .visible = true}));
    EXPECT_EQ(fromFields<DriverModelRecord>(longest8 + longest16 + support::hex("01")),
              (DriverModelRecord{.modelId = std::string(65535, 'i'), .name = longestWide, .visible = true}));
    EXPECT_FALSE(fromFields<DriverModelRecord>("01 00 6D  00 00  00  FF FF").visible);
}

TEST(OperatingSystemRecord, isIdNameTwoSignedNumbersAndAShortOne) {
    expectRecord(OperatingSystemRecord{.osId = "os", .name = u"W7", .value1 = -2, .value2 = 258, .value3 = 65535},
                 "02 00 6F 73  04 00 57 00 37 00  FE FF FF FF  02 01 00 00  FF FF");
    expectRecord(OperatingSystemRecord{}, "00 00  00 00  00 00 00 00  00 00 00 00  00 00");
}

TEST(OperatingSystemRecord, readsTextOfEveryLength) {
    const support::Bytes numbers = support::hex("01 00 00 00  02 00 00 00  03 00");
    EXPECT_EQ(fromFields<OperatingSystemRecord>(support::hex("00 00  04 00 3D D8 00 DE") + numbers).name, movedUp);
    EXPECT_EQ(fromFields<OperatingSystemRecord>(support::hex("00 00  01 00 57") + numbers + support::hex("AA")),
              (OperatingSystemRecord{.osId = {}, .name = {}, .value1 = 1, .value2 = 2, .value3 = 3}));
    EXPECT_EQ(fromFields<OperatingSystemRecord>(longest8 + longest16 + numbers).name, longestWide);
}

TEST(DriverRecord, isIdVersionCommentDateUploaderAndUse) {
    expectRecord(DriverRecord{.driverId = "d1",
                              .version = u"2",
                              .comment = u"C",
                              .uploadDate = "2014",
                              .uploadedBy = u"Jo",
                              .inUse = '1'},
                 "02 00 64 31  02 00 32 00  02 00 43 00  04 00 32 30 31 34  04 00 4A 00 6F 00  31");
    expectRecord(DriverRecord{}, "00 00  00 00  00 00  00 00  00 00  00");
}

TEST(DriverRecord, readsTextOfEveryLength) {
    const auto far = fromFields<DriverRecord>("00 00  04 00 3D D8 00 DE  04 00 3D D8 00 DE  00 00"
                                              "04 00 3D D8 00 DE  01");
    EXPECT_EQ(far, (DriverRecord{.driverId = {},
                                 .version = movedUp,
                                 .comment = movedUp,
                                 .uploadDate = {},
                                 .uploadedBy = movedUp,
                                 .inUse = 1}));
    EXPECT_EQ(fromFields<DriverRecord>("00 00  05 00 31 00 2E 00 32  01 00 43  00 00  00 00  00  FF").version, u"1.");
    EXPECT_EQ(fromFields<DriverRecord>(longest8 + longest16 + longest16 + longest8 + longest16 + support::hex("00")),
              (DriverRecord{.driverId = std::string(65535, 'i'),
                            .version = longestWide,
                            .comment = longestWide,
                            .uploadDate = std::string(65535, 'i'),
                            .uploadedBy = longestWide,
                            .inUse = 0}));
}

TEST(ShortDriverRecord, isIdVersionAndComment) {
    expectRecord(ShortDriverRecord{.driverId = "d1", .version = u"2", .comment = u"C"},
                 "02 00 64 31  02 00 32 00  02 00 43 00");
    expectRecord(ShortDriverRecord{}, "00 00  00 00  00 00");
    EXPECT_EQ(fromFields<ShortDriverRecord>("00 00  04 00 3D D8 00 DE  03 00 43 00 44  FF"),
              (ShortDriverRecord{.driverId = {}, .version = movedUp, .comment = u"C"}));
    EXPECT_EQ(fromFields<ShortDriverRecord>(longest8 + longest16 + longest16).comment, longestWide);
}

TEST(DriverDeploymentRecord, isWhatIsDeployedForWhatAndHow) {
    expectRecord(DriverDeploymentRecord{.version = u"2",
                                        .comment = u"C",
                                        .deploymentId = "x1",
                                        .osId = "o",
                                        .osName = u"W",
                                        .locale = u"de",
                                        .use = 1,
                                        .install = '0',
                                        .installMethod = 2},
                 "02 00 32 00  02 00 43 00  02 00 78 31  01 00 6F  02 00 57 00  04 00 64 00 65 00  01 30 02");
    expectRecord(DriverDeploymentRecord{}, "00 00  00 00  00 00  00 00  00 00  00 00  00 00 00");
}

TEST(DriverDeploymentRecord, readsTextOfEveryLength) {
    EXPECT_EQ(fromFields<DriverDeploymentRecord>("04 00 3D D8 00 DE  04 00 3D D8 00 DE  00 00 00 00"
                                                 "04 00 3D D8 00 DE  04 00 3D D8 00 DE  01 01 01"),
              (DriverDeploymentRecord{.version = movedUp,
                                      .comment = movedUp,
                                      .deploymentId = {},
                                      .osId = {},
                                      .osName = movedUp,
                                      .locale = movedUp,
                                      .use = 1,
                                      .install = 1,
                                      .installMethod = 1}));
    EXPECT_EQ(fromFields<DriverDeploymentRecord>("00 00 00 00 00 00 00 00 00 00  05 00 64 00 65 00 2D  01 00 02 FF"),
              (DriverDeploymentRecord{.version = {},
                                      .comment = {},
                                      .deploymentId = {},
                                      .osId = {},
                                      .osName = {},
                                      .locale = u"de",
                                      .use = 1,
                                      .install = 0,
                                      .installMethod = 2}));
    const auto wide = longest16;
    EXPECT_EQ(
        fromFields<DriverDeploymentRecord>(wide + wide + longest8 + longest8 + wide + wide + support::hex("01 00 02")),
        (DriverDeploymentRecord{.version = longestWide,
                                .comment = longestWide,
                                .deploymentId = std::string(65535, 'i'),
                                .osId = std::string(65535, 'i'),
                                .osName = longestWide,
                                .locale = longestWide,
                                .use = 1,
                                .install = 0,
                                .installMethod = 2}));
}

TEST(DriverRecords, sendTextOutsideTheBasicPlaneFurtherUp) {
    EXPECT_EQ(hexOf(DriverBrandRecord{.brandId = {}, .name = grinning}),
              tidy("01 0D 00 00 00  00 00  04 00 3E D8 00 DE"));
}

TEST(GetModelOctetOrderReply, isTheOrder) {
    expectRecord(GetModelOctetOrderReply{.octetOrder = 0x80000002}, "02 00 00 80");
    EXPECT_EQ(fromFields<GetModelOctetOrderReply>("01 00 00 00 FF").octetOrder, 1U);
}

TEST(CountDeploymentConfigsReply, isTheQueuesWithConfigurationsAndThenAllOfThem) {
    expectRecord(CountDeploymentConfigsReply{.queuesWithConfigs = 3, .totalQueues = 258}, "03 00 00 00  02 01 00 00");
    EXPECT_EQ(fromFields<CountDeploymentConfigsReply>("01 00 00 00  02 00 00 00  FF").totalQueues, 2U);
}

} // namespace
} // namespace protocol
