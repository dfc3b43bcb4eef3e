#pragma once

#include <cstdint>

// What a migration plan does with the old printer.
namespace protocol::schemaAction {

constexpr std::int32_t ignore = 1;
constexpr std::int32_t reinstall = 2; // on the new queue
constexpr std::int32_t remove = 3;

} // namespace protocol::schemaAction
