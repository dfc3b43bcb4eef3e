#include "server/Schema.h"

#include "server/alarms/AlarmSchema.h"
#include "server/configurations/ConfigurationSchema.h"
#include "server/drivers/DriverSchema.h"
#include "server/estate/EstateSchema.h"
#include "server/inventory/InventorySchema.h"
#include "server/login/LoginSchema.h"
#include "server/rules/RuleSchema.h"

namespace server {

namespace {

constexpr int vantreld = 0x56746C64; // "Vtld"

} // namespace

// Released steps never change. In the last one, a row whose name has become equal to another one's keeps its old key:
// both rows stay, under their names, and whichever is changed next needs a new name.
const Schema& schema() {
    static const Schema whole{.applicationId = vantreld,
                              .steps = {std::string(estateTables) + loginTables, driverTables, configurationTables,
                                        ruleTables, alarmTables, inventoryTables,
                                        std::string(estateKeys) + loginKeys + configurationKeys + driverKeys +
                                            ruleKeys + alarmKeys + inventoryKeys}};
    return whole;
}

} // namespace server
