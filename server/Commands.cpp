#include "server/Commands.h"

#include "server/alarms/AlarmHandlers.h"
#include "server/configurations/ConfigurationHandlers.h"
#include "server/drivers/DriverHandlers.h"
#include "server/estate/EstateHandlers.h"
#include "server/inventory/InventoryHandlers.h"
#include "server/rules/RuleHandlers.h"

namespace server {

const CommandTable& commands() {
    static const CommandTable table{estateHandlers(), driverHandlers(), configurationHandlers(),
                                    ruleHandlers(),   alarmHandlers(),  inventoryHandlers()};
    return table;
}

} // namespace server
