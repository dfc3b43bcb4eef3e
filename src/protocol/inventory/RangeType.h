#pragma once

#include <cstdint>

// What a migration does with the printers of an IP range.
namespace protocol::rangeType {

constexpr std::int32_t ignore = 0;
constexpr std::int32_t migrate = 1;
constexpr std::int32_t migrateLocal = 2; // as local printers
constexpr std::int32_t forceMigrate = 3;
constexpr std::int32_t forceMigrateLocal = 4;

} // namespace protocol::rangeType
