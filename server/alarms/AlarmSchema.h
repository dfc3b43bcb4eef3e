#pragma once

namespace server {

// The tables of alarm programs and e-mail recipients.
inline constexpr const char* alarmTables = R"sql(
)sql";

} // namespace server
