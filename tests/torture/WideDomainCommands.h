#pragma once

#include "tests/support/Bytes.h"

#include <cstdint>

// Wide commands beyond regions, printers and queues, each for the small sample estate at a port.
namespace torture {

[[nodiscard]] support::Bytes replaceDeployment(std::uint16_t port);
[[nodiscard]] support::Bytes deleteUsedConfiguration(std::uint16_t port);
[[nodiscard]] support::Bytes rewritePricePlan(std::uint16_t port);
[[nodiscard]] support::Bytes deleteRuleGroup(std::uint16_t port);
[[nodiscard]] support::Bytes deleteAlarmProgram(std::uint16_t port);
[[nodiscard]] support::Bytes createInventoryReport(std::uint16_t port);

} // namespace torture
