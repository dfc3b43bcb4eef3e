#include "client/drivers/DriverCommands.h"

namespace client {}
