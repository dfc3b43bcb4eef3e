#include "server/Handler.h"

#include "server/EstateHandlers.h"
#include "server/alarms/AlarmHandlers.h"
#include "server/configurations/ConfigurationHandlers.h"
#include "server/drivers/DriverHandlers.h"
#include "server/inventory/InventoryHandlers.h"
#include "server/rules/RuleHandlers.h"

#include <initializer_list>

namespace server {

const Handler* findHandler(std::uint16_t opcode, Fields fields) {
    bool known = false;
    for (const auto& handlers : {estateHandlers(), driverHandlers(), configurationHandlers(), ruleHandlers(),
                                 alarmHandlers(), inventoryHandlers()}) {
        for (const auto& one : handlers) {
            if (one.opcode != opcode)
                continue;
            if (one.takes == nullptr || one.takes(fields))
                return &one;
            known = true;
        }
    }
    if (known)
        throw BadRequest("command " + std::to_string(opcode) + " of a form that does not exist");
    return nullptr;
}

} // namespace server
