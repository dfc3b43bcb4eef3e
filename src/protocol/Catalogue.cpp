#include "protocol/Catalogue.h"

#include "protocol/alarms/AlarmRows.h"
#include "protocol/configurations/ConfigurationRows.h"
#include "protocol/drivers/DriverRows.h"
#include "protocol/estate/EstateRows.h"
#include "protocol/inventory/InventoryRows.h"
#include "protocol/rules/RuleRows.h"

#include <algorithm>
#include <array>

namespace protocol {
namespace {

template <std::size_t... counts>
constexpr auto byOpcode(const Command (&... parts)[counts]) {
    std::array<Command, (counts + ...)> all;
    auto next = all.begin();
    ((next = std::ranges::copy(parts, next).out), ...);
    std::ranges::sort(all, {}, &Command::opcode);
    return all;
}

constexpr auto commands = byOpcode(estateRows, driverRows, configurationRows, alarmRows, inventoryRows, ruleRows);
static_assert(std::ranges::adjacent_find(commands, {}, &Command::opcode) == commands.end());

constexpr std::size_t opcodeCount = commands.back().opcode + 1U;

constexpr std::size_t noRow = commands.size();

constexpr auto rowOfOpcode = [] {
    std::array<std::uint8_t, opcodeCount> rows{};
    rows.fill(noRow);
    for (std::size_t row = 0; row < commands.size(); ++row) {
        rows[commands[row].opcode] = static_cast<std::uint8_t>(row);
    }
    return rows;
}();

} // namespace

std::span<const Command> catalogue() {
    return commands;
}

const Command* findCommand(std::uint16_t opcode) {
    if (opcode >= opcodeCount || rowOfOpcode[opcode] == noRow) {
        return nullptr;
    }
    return &commands[rowOfOpcode[opcode]];
}

} // namespace protocol
