#include "protocol/Catalogue.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

namespace protocol {
namespace {

struct Row {
    std::uint16_t opcode;
    std::uint16_t version;
    std::string_view name;
    std::string_view reply;
    std::string_view connection;
    bool closes;
    std::string_view reader;
};

constexpr Row expectedRows[] = {
    {0, 1, "ListRegions", "list", "open", true, "strict"},
    {1, 1, "CreateRegion", "none", "member", true, "none"},
    {2, 1, "RenameRegion", "none", "member", true, "none"},
    {3, 1, "MoveRegion", "none", "member", true, "none"},
    {4, 1, "ListDriverBrands", "list", "member", true, "plain"},
    {5, 1, "ListDriverModels", "list", "open", true, "strict"},
    {6, 1, "ListPrinterRecords", "list", "member", true, "plain"},
    {9, 1, "CreateRecord", "single", "open", true, "middle"},
    {10, 2, "UpdateRecord", "single", "open", true, "middle"},
    {11, 1, "ListOperatingSystems", "list", "member", true, "plain"},
    {12, 1, "ListDrivers", "list", "member", false, "plain"},
    {13, 1, "DeleteDriver", "none", "member", false, "none"},
    {14, 1, "ListDriverDeployments", "list", "member", false, "plain"},
    {15, 1, "AddDriverDeployment", "none", "member", false, "none"},
    {16, 1, "ChangeDriverDeployment", "none", "member", false, "none"},
    {17, 1, "ListQueueConfigurations", "list", "member", false, "plain"},
    {18, 1, "ListConfigurationChoices", "list", "member", false, "plain"},
    {19, 1, "ApplyQueueConfiguration", "none", "member", false, "none"},
    {20, 1, "SetDriverModelVisible", "none", "member", false, "none"},
    {21, 1, "MovePrinter", "none", "member", true, "none"},
    {22, 1, "Login", "single", "member", true, "plain"},
    {23, 1, "ListEmailRecipients", "list", "member", false, "middle"},
    {24, 1, "WriteEmailRecipient", "none", "member", false, "none"},
    {25, 1, "SetRecipientActive", "none", "member", true, "none"},
    {27, 1, "ListAlarmPrograms", "list", "member", false, "middle"},
    {28, 1, "WriteAlarmProgram", "single", "member", true, "plain"},
    {29, 1, "ListAlarmEvents", "list", "member", false, "plain"},
    {30, 1, "ListAlarmActions", "list", "member", false, "plain"},
    {31, 1, "ListAlarmDestinations", "list", "member", false, "plain"},
    {32, 1, "ListProgramActions", "list", "member", true, "plain"},
    {33, 1, "AddProgramAction", "none", "member", true, "none"},
    {34, 1, "DeleteProgramAction", "none", "member", true, "none"},
    {36, 1, "DeleteRecord", "none", "member", true, "none"},
    {37, 1, "ListSchemas", "list", "member", false, "middle"},
    {38, 1, "ChangeSchema", "none", "member", false, "none"},
    {39, 1, "SearchQueues", "list", "member", false, "middle"},
    {40, 1, "ListInventoryReports", "list", "member", false, "middle"},
    {41, 1, "CreateInventoryReport", "none", "member", false, "none"},
    {42, 1, "DeleteInventoryReport", "none", "member", false, "none"},
    {43, 1, "ListInventoryModels", "list", "member", false, "middle"},
    {44, 1, "ListInventoryPrinters", "list", "member", false, "middle"},
    {45, 1, "DeleteRegion", "none", "member", false, "none"},
    {46, 1, "AddDriverModel", "none", "member", false, "none"},
    {47, 1, "AddBuiltInDriver", "none", "member", false, "none"},
    {48, 1, "AddAlternateDriver", "none", "member", false, "none"},
    {49, 1, "RemoveAlternateDriver", "none", "member", false, "none"},
    {50, 1, "ListConfigurations", "list", "member", false, "plain"},
    {51, 1, "SetConfigurationComment", "none", "member", false, "none"},
    {52, 1, "DeleteConfiguration", "none", "member", false, "none"},
    {53, 1, "ListConfigurationQueues", "list", "member", false, "plain"},
    {54, 1, "RemoveConfigurationFromQueue", "none", "member", false, "none"},
    {55, 1, "ListIpRanges", "list", "member", false, "middle"},
    {56, 1, "ChangeIpRange", "none", "member", false, "none"},
    {57, 1, "ListRuleGroups", "list", "member", false, "plain"},
    {58, 1, "WriteRuleGroup", "none", "member", true, "none"},
    {59, 1, "ListAffected", "list", "member", false, "plain"},
    {60, 1, "WriteAffected", "none", "member", true, "none"},
    {61, 1, "ListRuleEntries", "list", "member", false, "middle"},
    {62, 1, "RemoveRuleEntry", "none", "member", true, "none"},
    {64, 1, "WriteRuleObject", "none", "member", true, "none"},
    {65, 1, "GetPageLimit", "single", "member", true, "plain"},
    {66, 1, "DeletePageLimit", "none", "member", true, "none"},
    {67, 1, "ListUserMessages", "list", "member", true, "middle"},
    {68, 1, "WriteUserMessage", "none", "member", true, "none"},
    {69, 1, "ListPricePlans", "list", "open", true, "strict"},
    {70, 1, "WritePricePlan", "none", "open", true, "none"},
    {71, 1, "ListPriceEntries", "list", "open", true, "strict"},
    {73, 1, "ListPageLimits", "list", "member", false, "strict"},
    {74, 1, "SetStatusOctetOrder", "none", "member", true, "none"},
    {75, 1, "SetModelOctetOrder", "none", "member", true, "none"},
    {76, 1, "GetStatusOctetOrder", "single", "member", false, "plain"},
    {77, 1, "GetModelOctetOrder", "single", "member", false, "plain"},
    {78, 1, "GetPublicKey", "single and block", "own", true, "plain"},
    {79, 1, "ApplyConfigurationForDriver", "none", "member", false, "none"},
    {80, 1, "CountDeploymentConfigs", "single", "member", false, "plain"},
    {81, 1, "ListShortIds", "list", "open", true, "strict"},
    {82, 1, "DeleteShortId", "none", "open", true, "none"},
    {83, 1, "AddShortId", "none", "open", true, "none"},
    {84, 1, "UpdateShortId", "none", "open", true, "none"},
};

std::string_view textOf(ReplyShape shape) {
    constexpr std::string_view texts[] = {"none", "single", "list", "single and block"};
    return texts[static_cast<std::size_t>(shape)];
}

std::string_view textOf(Connection connection) {
    constexpr std::string_view texts[] = {"open", "member", "own"};
    return texts[static_cast<std::size_t>(connection)];
}

std::string_view textOf(ReaderForm form) {
    constexpr std::string_view texts[] = {"none", "plain", "middle", "strict"};
    return texts[static_cast<std::size_t>(form)];
}

TEST(Catalogue, hasSeventyNineCommands) {
    EXPECT_EQ(catalogue().size(), 79U);
}

TEST(Catalogue, eachCommandStandsAsItWasAgreed) {
    ASSERT_EQ(catalogue().size(), std::size(expectedRows));
    for (std::size_t index = 0; index < std::size(expectedRows); ++index) {
        const Command& command = catalogue()[index];
        const Row& row = expectedRows[index];
        SCOPED_TRACE(row.opcode);
        EXPECT_EQ(command.opcode, row.opcode);
        EXPECT_EQ(command.version, row.version);
        EXPECT_EQ(command.name, row.name);
        EXPECT_EQ(textOf(command.reply), row.reply);
        EXPECT_EQ(textOf(command.connection), row.connection);
        EXPECT_EQ(command.closes, row.closes);
        EXPECT_EQ(textOf(command.reader), row.reader);
    }
}

TEST(Catalogue, onlyUpdateRecordHasVersionTwo) {
    for (const Command& command : catalogue()) {
        EXPECT_EQ(command.version, command.name == "UpdateRecord" ? 2 : 1) << command.name;
    }
}

TEST(Catalogue, onlyThreeCommandsGuardTheirSend) {
    std::set<std::uint16_t> guarded;
    for (const Command& command : catalogue()) {
        if (command.send == SendForm::guarded) {
            guarded.insert(command.opcode);
        }
    }

    EXPECT_EQ(guarded, (std::set<std::uint16_t>{5, 27, 73}));
}

TEST(Catalogue, namesAndPurposesAreThereAndNamesDiffer) {
    std::set<std::string_view> names;
    for (const Command& command : catalogue()) {
        EXPECT_FALSE(command.name.empty());
        EXPECT_FALSE(command.purpose.empty());
        names.insert(command.name);
    }

    EXPECT_EQ(names.size(), catalogue().size());
}

TEST(Catalogue, aCommandIsFoundByItsOpcode) {
    for (const Command& command : catalogue()) {
        EXPECT_EQ(findCommand(command.opcode), &command);
    }
}

TEST(Catalogue, anOpcodeThatIsNotInUseIsNotFound) {
    for (const int opcode : {7, 8, 26, 35, 63, 72, 85, 86, 255, 256, 32768, 65535}) {
        EXPECT_EQ(findCommand(static_cast<std::uint16_t>(opcode)), nullptr) << opcode;
    }
}

TEST(Catalogue, everyRequestIsDescribed) {
    for (const Command& command : catalogue()) {
        EXPECT_NE(command.request != nullptr, !command.forms.empty()) << command.name;
        for (const RequestForm& form : command.forms) {
            EXPECT_FALSE(form.when.empty()) << command.name;
            EXPECT_NE(form.layout, nullptr) << command.name;
        }
    }
}

TEST(Catalogue, everyReplyIsDescribed) {
    for (const Command& command : catalogue()) {
        EXPECT_EQ(command.replyRecord != nullptr, command.reply != ReplyShape::none) << command.name;
    }
}

TEST(Catalogue, aCommandWithoutFieldsHasALayoutWithoutFields) {
    const Command* const command = findCommand(78);

    ASSERT_NE(command, nullptr);
    EXPECT_EQ(command->request->name, "GetPublicKeyRequest");
    EXPECT_TRUE(command->request->fields.empty());
}

} // namespace
} // namespace protocol
