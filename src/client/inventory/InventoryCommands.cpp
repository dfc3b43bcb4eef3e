#include "client/inventory/InventoryCommands.h"

namespace client {}
