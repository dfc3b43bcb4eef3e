#pragma once

namespace server {

// The tables of rule groups and entries, page limits, price plans, short ids and user messages.
inline constexpr const char* ruleTables = R"sql(
)sql";

} // namespace server
