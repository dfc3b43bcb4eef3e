#include "server/configurations/ConfigurationHandlers.h"

namespace server {

std::span<const Handler> configurationHandlers() {
    return {};
}

} // namespace server
