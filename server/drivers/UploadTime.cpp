#include "server/drivers/UploadTime.h"

#include <fmt/chrono.h>

namespace server {

std::string uploadTime(std::chrono::system_clock::time_point moment) {
    using namespace std::chrono;
    const auto fraction = floor<milliseconds>(moment.time_since_epoch()) % 1s;
    const auto local = fmt::localtime(system_clock::to_time_t(floor<seconds>(moment)));
    return fmt::format("{:%Y-%m-%d %H:%M:%S}.{:03}", local, fraction.count());
}

} // namespace server
