#include "server/commands/CommandTable.h"

#include "protocol/Catalogue.h"
#include "server/Commands.h"

#include <gtest/gtest.h>

namespace server {
namespace {

TEST(CommandTable, aCommandEitherReadsOrChanges) {
    for (const std::uint16_t opcode : std::initializer_list<std::uint16_t>{0, 6, 76}) {
        EXPECT_NE(commands().find(opcode, {})->answer, nullptr) << opcode;
        EXPECT_EQ(commands().find(opcode, {})->prepare, nullptr) << opcode;
    }
    for (const std::uint16_t opcode : std::initializer_list<std::uint16_t>{1, 2, 3, 9, 10, 21, 36, 45, 74}) {
        EXPECT_NE(commands().find(opcode, {})->prepare, nullptr) << opcode;
        EXPECT_EQ(commands().find(opcode, {})->answer, nullptr) << opcode;
    }
}

TEST(CommandTable, everyCommandHasOneButThoseOfTheLogin) {
    for (const auto& command : protocol::catalogue()) {
        const bool isLogin = command.opcode == 22 || command.opcode == 78;
        const std::uint8_t action[] = {static_cast<std::uint8_t>(command.opcode == 62 ? 3 : 1)};
        EXPECT_EQ(commands().find(command.opcode, action) == nullptr, isLogin) << command.name;
    }
}

TEST(CommandTable, anActionThatDoesNotExistIsRefused) {
    const std::uint8_t action[] = {77};
    for (const std::uint16_t opcode : {std::uint16_t{58}, std::uint16_t{60}, std::uint16_t{64}, std::uint16_t{68}}) {
        EXPECT_THROW((void)commands().find(opcode, action), BadRequest) << opcode;
    }
    EXPECT_THROW((void)commands().find(58, {}), BadRequest);
}

TEST(CommandTable, anOpcodeThatIsNotInUseHasNone) {
    for (const std::uint16_t opcode : std::initializer_list<std::uint16_t>{7, 8, 26, 35, 63, 72, 85, 65535}) {
        EXPECT_EQ(commands().find(opcode, {}), nullptr) << opcode;
    }
}

} // namespace
} // namespace server
