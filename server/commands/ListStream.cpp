#include "server/commands/ListStream.h"

#include "server/log/Log.h"

#include <algorithm>

namespace server {

std::int64_t announcedCount(std::int64_t count) {
    if (count > longestList) {
        log::warn("a list of " + std::to_string(count) + " records was cut to " + std::to_string(longestList) +
                  ": consoles accept no more");
    }
    return std::min(count, longestList);
}

} // namespace server
