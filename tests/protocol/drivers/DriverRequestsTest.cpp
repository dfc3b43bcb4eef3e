#include "protocol/Catalogue.h"
#include "protocol/drivers/Driver.h"
#include "protocol/drivers/DriverDeployment.h"
#include "protocol/drivers/DriverModel.h"
#include "tests/protocol/RecordBytes.h"

#include <gtest/gtest.h>

namespace protocol {
namespace {

// Checks the request against these fields, in both directions.
template <class Request>
void expectFields(const Request& request, const std::string& fields) {
    EXPECT_EQ(hexOf(request), support::toHex(support::dataMessage(support::hex(fields))));
    EXPECT_EQ(fromFields<Request>(fields), request);
}

TEST(DriverRequests, ofListsAreKindOfListAndParent) {
    expectFields(ListDriverModelsRequest{.listKind = 2, .parentId = "m1"}, "02  02 00 6D 31");
    expectFields(ListDriverModelsRequest{}, "00  00 00");
    expectFields(ListDriversRequest{.listKind = 3, .parentId = "m1"}, "03  02 00 6D 31");
    expectFields(ListDriversRequest{}, "00  00 00");
}

TEST(DriverRequests, ofBrandsAndOperatingSystemsHaveNoFields) {
    for (const std::uint16_t opcode : std::initializer_list<std::uint16_t>{4, 11}) {
        const Command* const command = findCommand(opcode);
        ASSERT_NE(command, nullptr) << opcode;
        EXPECT_TRUE(command->request->fields.empty()) << opcode;
    }
}

TEST(ListDriverDeploymentsRequest, isModelAndThenDriver) {
    expectFields(ListDriverDeploymentsRequest{.modelId = "m1", .driverId = "d1"}, "02 00 6D 31  02 00 64 31");
    expectFields(ListDriverDeploymentsRequest{.modelId = "m1", .driverId = {}}, "02 00 6D 31  00 00");
}

TEST(AddDriverDeploymentRequest, isDriverModelTextsSystemAndFourBytes) {
    expectFields(AddDriverDeploymentRequest{.driverId = "d1",
                                            .modelId = "m1",
                                            .comment = u"C",
                                            .locale = u"de",
                                            .osId = "o1",
                                            .use = 1,
                                            .install = 1,
                                            .installMethod = 2,
                                            .keepConfig = 1},
                 "02 00 64 31  02 00 6D 31  02 00 43 00  04 00 64 00 65 00  02 00 6F 31  01 01 02 01");
    expectFields(AddDriverDeploymentRequest{}, "00 00  00 00  00 00  00 00  00 00  01 00 00 00");
}

TEST(UpdateDriverDeploymentRequest, carriesFourBytesBehindTheId) {
    expectFields(
        UpdateDriverDeploymentRequest{
            .deploymentId = "x1", .use = 1, .install = 1, .installMethod = 2, .keepConfig = 1},
        "02 00 78 31  01 01 02 01");
    expectFields(
        UpdateDriverDeploymentRequest{
            .deploymentId = "x1", .use = 0, .install = 0, .installMethod = 0, .keepConfig = 0},
        "02 00 78 31  00 00 00 00");
}

TEST(RemoveDriverDeploymentRequest, carriesTenZeroBytesBehindTheId) {
    const RemoveDriverDeploymentRequest request{.deploymentId = "x1"};

    EXPECT_EQ(hexOf(request), tidy("01 13 00 00 00  02 00 78 31  00 00 00 00 00 00 00 00 00 00"));
}

TEST(ChangeDriverDeployment, bothFormsStandInTheCatalogueWithTheirFields) {
    const auto forms = findCommand(16)->forms;

    ASSERT_EQ(forms.size(), 2U);
    EXPECT_EQ(forms[0].layout->name, "UpdateDriverDeploymentRequest");
    EXPECT_EQ(forms[1].layout->name, "RemoveDriverDeploymentRequest");
    EXPECT_NE(forms[0].when, forms[1].when);
}

TEST(ListDrivers, hasAShortFormOfItsRecordsForListKindTwo) {
    const Command* const command = findCommand(12);

    EXPECT_EQ(command->replyRecord->name, "DriverRecord");
    EXPECT_EQ(command->otherRecord.firstByte, 2);
    EXPECT_EQ(command->otherRecord.layout->name, "ShortDriverRecord");
}

TEST(DriverRequests, thatNameOneThingAreItsId) {
    expectFields(DeleteDriverRequest{.driverId = "d1"}, "02 00 64 31");
    expectFields(AddBuiltInDriverRequest{.modelId = "m1"}, "02 00 6D 31");
    expectFields(GetModelOctetOrderRequest{.modelId = "m1"}, "02 00 6D 31");
}

TEST(SetDriverModelVisibleRequest, isTheByteAndThenTheModel) {
    expectFields(SetDriverModelVisibleRequest{.visible = 1, .modelId = "m1"}, "01  02 00 6D 31");
    expectFields(SetDriverModelVisibleRequest{.visible = 0, .modelId = {}}, "00  00 00");
}

TEST(AddDriverModelRequest, isBrandAndName) {
    expectFields(AddDriverModelRequest{.brandId = "b1", .name = u"Fo"}, "02 00 62 31  04 00 46 00 6F 00");
    const support::Bytes longest = support::hex("01 00 62 FE FF") + repeated(32767, "4E 00");
    EXPECT_EQ(hexOf(AddDriverModelRequest{.brandId = "b", .name = wire::WideString(32767, u'N')}),
              support::toHex(support::dataMessage(longest)));
    EXPECT_EQ(hexOf(AddDriverModelRequest{.brandId = {}, .name = u"\U0001F600"}),
              tidy("01 0D 00 00 00  00 00  04 00 3E D8 00 DE"));
}

TEST(AlternateDriverRequests, areTheModelAndThenTheAlternate) {
    expectFields(AddAlternateDriverRequest{.modelId = "m1", .alternateModelId = "m2"}, "02 00 6D 31  02 00 6D 32");
    expectFields(RemoveAlternateDriverRequest{.modelId = "m1", .alternateModelId = "m2"}, "02 00 6D 31  02 00 6D 32");
}

TEST(SetModelOctetOrderRequest, isTheOrderAndThenTheModel) {
    expectFields(SetModelOctetOrderRequest{.octetOrder = 2, .modelId = "m1"}, "02 00 00 00  02 00 6D 31");
}

TEST(CountDeploymentConfigsRequest, isModelSystemAndLocale) {
    expectFields(CountDeploymentConfigsRequest{.modelId = "m1", .osId = "o1", .locale = u"de"},
                 "02 00 6D 31  02 00 6F 31  04 00 64 00 65 00");
    expectFields(CountDeploymentConfigsRequest{}, "00 00  00 00  00 00");
}

} // namespace
} // namespace protocol
