#include "server/drivers/DriverHandlers.h"

namespace server {

std::span<const Handler> driverHandlers() {
    return {};
}

} // namespace server
