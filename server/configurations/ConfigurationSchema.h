#pragma once

namespace server {

// The tables of configurations of driver models and of queues.
inline constexpr const char* configurationTables = R"sql(
)sql";

} // namespace server
