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

// Steps that have shipped never change. In the last one a row whose name has become equal to another one's keeps the
// key that it has: both stay, under their names, and the one that is changed next needs another name.
const Schema& schema() {
    static const Schema whole{.applicationId = vantreld,
                              .steps = {std::string(estateTables) + loginTables, driverTables, configurationTables,
                                        ruleTables, alarmTables, inventoryTables,
                                        std::string(estateKeys) + loginKeys + configurationKeys + driverKeys +
                                            ruleKeys + alarmKeys + inventoryKeys}};
    return whole;
}

} // namespace server
