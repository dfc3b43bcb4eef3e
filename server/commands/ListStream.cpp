#include "server/commands/ListStream.h"

#include <spdlog/spdlog.h>

#include <algorithm>

namespace server {

std::int64_t announcedCount(std::int64_t count) {
    if (count > longestList)
        spdlog::warn("a list of {} records was cut to {}: consoles take no more", count, longestList);
    return std::min(count, longestList);
}

} // namespace server
