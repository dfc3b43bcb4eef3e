#pragma once

#include <cstdint>

namespace queues {

// Whose queues a node or a dialog is about. Other values have no commands.
enum class QueueMode : std::int32_t { queue = 1, followPrint = 3 };

} // namespace queues
