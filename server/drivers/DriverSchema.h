#pragma once

namespace server {

// The tables of brands, models, drivers and deployments.
inline constexpr const char* driverTables = R"sql(
)sql";

} // namespace server
