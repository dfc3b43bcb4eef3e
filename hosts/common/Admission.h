#pragma once

#include <cstdint>

namespace common {

// What the server makes of this console's commands. It answers none without a login, and forgets logins when it is
// restarted and some time after they were made.
enum class Admission : std::uint8_t { admitted, turnedAway, unreachable };

// Asks the server with a command that lists nothing. The commands of the question are reported like all others. Throws
// nothing: a question that is cancelled counts as one that does not arrive.
[[nodiscard]] Admission askForAdmission();

} // namespace common
