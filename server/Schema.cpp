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

// Steps that have shipped never change.
const Schema& schema() {
    static const Schema whole{.applicationId = vantreld,
                              .steps = {std::string(estateTables) + loginTables, driverTables, configurationTables,
                                        ruleTables, alarmTables, inventoryTables}};
    return whole;
}

} // namespace server
