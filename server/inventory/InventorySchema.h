#pragma once

namespace server {

// The tables of inventory reports, migration plans and IP ranges.
inline constexpr const char* inventoryTables = R"sql(
)sql";

} // namespace server
