#include "server/inventory/InventoryHandlers.h"

namespace server {

std::span<const Handler> inventoryHandlers() {
    return {};
}

} // namespace server
