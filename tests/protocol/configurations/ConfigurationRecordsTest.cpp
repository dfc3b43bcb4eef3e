#include "protocol/configurations/Configuration.h"
#include "protocol/configurations/QueueConfiguration.h"
#include "tests/protocol/RecordBytes.h"

#include <gtest/gtest.h>

namespace protocol {
namespace {

// Checks that a record is written as these bytes and read back from them.
template <Record R>
void expectBytes(const R& record, const std::string& header, const std::string& fields) {
    EXPECT_EQ(hexOf(record), tidy(header + fields));
    EXPECT_EQ(fromFields<R>(fields), record);
}

// Checks that extra bytes from a peer are left unread.
template <Record R>
void expectTrailingBytesUnread(const R& record, const std::string& fields) {
    EXPECT_EQ(fromFields<R>(fields + " 01 02 03"), record);
}

constexpr const char* ordinaryConfiguration = "02 00 63 31  04 00 41 00 64 00  08 00 32 00 30 00 31 00 34 00 "
                                              "06 00 4C 00 75 00 78 00  02 00 74 00  02 00";

TEST(ConfigurationRecord, isIdUploaderDateCommentTextAndTheNumberOfQueues) {
    expectBytes(ConfigurationRecord{.configId = "c1",
                                    .uploadedBy = u"Ad",
                                    .date = u"2014",
                                    .comment = u"Lux",
                                    .configText = u"t",
                                    .useCount = 2},
                "01 27 00 00 00", std::string(" ") + ordinaryConfiguration);
}

TEST(ConfigurationRecord, anEmptyOneSendsAllFields) {
    expectBytes(ConfigurationRecord{}, "01 11 00 00 00 ", "00 00 00 00 00 00 00 00 00 00 00 00");
}

TEST(ConfigurationRecord, textOutsideTheBasicPlaneMoves) {
    const auto record = fromFields<ConfigurationRecord>("00 00  04 00 3D D8 00 DE  00 00  04 00 3D D8 00 DE  "
                                                        "04 00 3D D8 00 DE  00 00");

    EXPECT_EQ(record.uploadedBy, u"\U0001FA00");
    EXPECT_EQ(record.comment, u"\U0001FA00");
    EXPECT_EQ(record.configText, u"\U0001FA00");
}

TEST(ConfigurationRecord, theLongestTextIsReadBack) {
    ConfigurationRecord record;
    record.comment = std::u16string(32767, u'x');
    record.useCount = 65535;
    const auto fields =
        support::hex("00 00 00 00 00 00 FE FF") + repeated(32767, "78 00") + support::hex("00 00 FF FF");

    EXPECT_EQ(hexOf(record), support::toHex(support::dataMessage(fields)));
    EXPECT_EQ(fromFields<ConfigurationRecord>(fields), record);
}

TEST(ConfigurationRecord, aTextOfAnOddCountLosesItsLastByte) {
    const auto record = fromFields<ConfigurationRecord>("00 00 00 00 00 00  05 00 41 00 42 00 43  00 00 07 00");

    EXPECT_EQ(record.comment, u"AB");
    EXPECT_EQ(record.useCount, 7);
}

TEST(ConfigurationRecord, whatAServerAddsBehindIsLeftUnread) {
    expectTrailingBytesUnread(fromFields<ConfigurationRecord>(ordinaryConfiguration), ordinaryConfiguration);
}

TEST(ConfigQueueRecord, isNumberIdNameAndLocation) {
    const std::string fields = " FE FF FF FF  02 00 71 31  04 00 51 00 31 00  02 00 4C 00";
    const ConfigQueueRecord record{
        .queueNumber = 0xFFFFFFFE, .queueId = "q1", .queueName = u"Q1", .queueLocation = u"L"};

    expectBytes(record, "01 17 00 00 00", fields);
    expectTrailingBytesUnread(record, fields);
    expectBytes(ConfigQueueRecord{}, "01 0F 00 00 00", " 00 00 00 00 00 00 00 00 00 00");
}

TEST(ConfigQueueRecord, readsTextOutsideTheBasicPlaneOfAnOddCountAndTheLongest) {
    EXPECT_EQ(fromFields<ConfigQueueRecord>("00 00 00 00 00 00 04 00 3D D8 00 DE 00 00").queueName, u"\U0001FA00");
    EXPECT_EQ(fromFields<ConfigQueueRecord>("00 00 00 00 00 00 03 00 41 00 42 02 00 43 00").queueLocation, u"C");
    EXPECT_EQ(fromFields<ConfigQueueRecord>(support::hex("00 00 00 00 00 00 FE FF") + repeated(32767, "78 00") +
                                            support::hex("00 00"))
                  .queueName,
              std::u16string(32767, u'x'));
}

TEST(QueueConfigEntry, isConfigurationDriverLocaleMapPackageAndComment) {
    const std::string fields =
        " 02 00 63 31  04 00 76 00 31 00  04 00 64 00 65 00  02 00 6D 31  06 00 4C 00 75 00 78 00 "
        "02 00 74 00";
    const QueueConfigEntry entry{.configId = "c1",
                                 .driverName = u"v1",
                                 .locale = u"de",
                                 .driverMapId = "m1",
                                 .packageName = u"Lux",
                                 .comment = u"t"};

    expectBytes(entry, "01 25 00 00 00", fields);
    expectTrailingBytesUnread(entry, fields);
}

TEST(QueueConfigEntry, withoutAConfigurationHasAnEmptyIdAndPackage) {
    QueueConfigEntry entry;
    entry.driverName = u"v";
    entry.driverMapId = "m";

    expectBytes(entry, "01 14 00 00 00", " 00 00  02 00 76 00  00 00  01 00 6D  00 00  00 00");
    expectBytes(QueueConfigEntry{}, "01 11 00 00 00", " 00 00 00 00 00 00 00 00 00 00 00 00");
}

TEST(QueueConfigEntry, readsTextOutsideTheBasicPlaneOfAnOddCountAndTheLongest) {
    EXPECT_EQ(fromFields<QueueConfigEntry>("00 00 04 00 3D D8 00 DE 00 00 00 00 00 00 00 00").driverName,
              u"\U0001FA00");
    EXPECT_EQ(fromFields<QueueConfigEntry>("00 00 00 00 03 00 41 00 42 00 00 00 00 02 00 43 00").comment, u"C");
    EXPECT_EQ(fromFields<QueueConfigEntry>(support::hex("00 00 00 00 00 00 00 00 FE FF") + repeated(32767, "78 00") +
                                           support::hex("00 00"))
                  .packageName,
              std::u16string(32767, u'x'));
}

TEST(QueueConfigChoice, isIdAndName) {
    const QueueConfigChoice choice{.id = "c1", .name = u"Lux"};
    const std::string fields = " 02 00 63 31  06 00 4C 00 75 00 78 00";

    expectBytes(choice, "01 11 00 00 00", fields);
    expectTrailingBytesUnread(choice, fields);
    expectBytes(QueueConfigChoice{}, "01 09 00 00 00", " 00 00 00 00");
    EXPECT_EQ(fromFields<QueueConfigChoice>("00 00 04 00 3D D8 00 DE").name, u"\U0001FA00");
    EXPECT_EQ(fromFields<QueueConfigChoice>("00 00 03 00 41 00 42").name, u"A");
    EXPECT_EQ(fromFields<QueueConfigChoice>(support::hex("FF FF") + repeated(65535, "69") + support::hex("00 00")).id,
              std::string(65535, 'i'));
}

TEST(ListQueueConfigurationsRequest, isQueueAndDriverMap) {
    expectBytes(ListQueueConfigurationsRequest{.queueId = "q1", .driverMapId = "m1"}, "01 0D 00 00 00",
                " 02 00 71 31 02 00 6D 31");
    expectBytes(ListQueueConfigurationsRequest{.queueId = "q1", .driverMapId = {}}, "01 0B 00 00 00",
                " 02 00 71 31 00 00");
}

TEST(ListConfigurationChoicesRequest, isTheDriverMap) {
    expectBytes(ListConfigurationChoicesRequest{.driverMapId = "m1"}, "01 09 00 00 00", " 02 00 6D 31");
}

TEST(ApplyQueueConfigurationRequest, isQueueDriverMapAndConfiguration) {
    expectBytes(ApplyQueueConfigurationRequest{.queueId = "q1", .driverMapId = "m1", .configId = "c1"},
                "01 11 00 00 00", " 02 00 71 31 02 00 6D 31 02 00 63 31");
    expectBytes(ApplyQueueConfigurationRequest{.queueId = "q1", .driverMapId = "m1", .configId = {}}, "01 0F 00 00 00",
                " 02 00 71 31 02 00 6D 31 00 00");
}

TEST(ListConfigurationsRequest, isTheModel) {
    expectBytes(ListConfigurationsRequest{.modelId = "m1"}, "01 09 00 00 00", " 02 00 6D 31");
}

TEST(SetConfigurationCommentRequest, isConfigurationAndComment) {
    expectBytes(SetConfigurationCommentRequest{.configId = "c1", .comment = u"Lux"}, "01 11 00 00 00",
                " 02 00 63 31 06 00 4C 00 75 00 78 00");
}

TEST(DeleteConfigurationRequest, isForceAndThenTheConfiguration) {
    expectBytes(DeleteConfigurationRequest{.force = 1, .configId = "c1"}, "01 0A 00 00 00", " 01 02 00 63 31");
    expectBytes(DeleteConfigurationRequest{.configId = "c1"}, "01 0A 00 00 00", " 00 02 00 63 31");
}

TEST(ListConfigurationQueuesRequest, isTheConfiguration) {
    expectBytes(ListConfigurationQueuesRequest{.configId = "c1"}, "01 09 00 00 00", " 02 00 63 31");
}

TEST(RemoveConfigurationFromQueueRequest, isConfigurationAndQueue) {
    expectBytes(RemoveConfigurationFromQueueRequest{.configId = "c1", .queueId = "q1"}, "01 0D 00 00 00",
                " 02 00 63 31 02 00 71 31");
}

TEST(ApplyConfigurationForDriverRequest, isConfigurationModelAndDriver) {
    expectBytes(ApplyConfigurationForDriverRequest{.configId = "c1", .modelId = "m1", .driverId = "d1"},
                "01 11 00 00 00", " 02 00 63 31 02 00 6D 31 02 00 64 31");
}

} // namespace
} // namespace protocol
