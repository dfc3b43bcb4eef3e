#include "tests/adversity/EstateIds.h"

#include "server/store/Query.h"

#include <map>
#include <string_view>

namespace adversity {

namespace {

// A column of a row that belongs to the first configuration used by a queue.
std::string used(const std::string& column, const std::string& table, const std::string& condition) {
    return "SELECT " + column + " FROM queueConfiguration JOIN " + table + " ON " + condition +
           " ORDER BY queueNumber, deploymentId";
}

// The query for a field's id, by the name of the record and the field, or of the field alone.
const std::map<std::string, std::string, std::less<>>& places() {
    static const std::map<std::string, std::string, std::less<>> all{
        {"printerId", "SELECT id FROM record WHERE recordType = 0"},
        {"physicalPrinterId", "SELECT id FROM record WHERE recordType = 0"},
        {"queueId", used("record.id", "record", "queueNumber = record.number")},
        {"newQueueId", "SELECT id FROM record WHERE recordType = 1"},
        {"DeleteRecordRequest.id", "SELECT id FROM record WHERE recordType = 0"},
        {"PrinterRecord.id", "SELECT id FROM record WHERE recordType = 0"},
        {"alarmProgramId", "SELECT id FROM alarmProgram WHERE kind = 0"},
        {"counterProgramId", "SELECT id FROM alarmProgram WHERE kind = 2"},
        {"programId", "SELECT id FROM alarmProgram WHERE kind = 0"},
        {"eventId", "SELECT id FROM alarmEvent"},
        {"destinationId", "SELECT id FROM emailRecipient"},
        {"actionId", "SELECT id FROM programAction"},
        {"WriteEmailRecipientRequest.id", "SELECT id FROM emailRecipient"},
        {"SetRecipientActiveRequest.id", "SELECT id FROM emailRecipient"},
        {"WriteAlarmProgramRequest.id", "SELECT id FROM alarmProgram WHERE kind = 0"},
        {"brandId", "SELECT id FROM driverBrand"},
        {"ListDriverModelsRequest.parentId", "SELECT id FROM driverBrand"},
        {"ListDriversRequest.parentId", "SELECT id FROM driverBrand"},
        {"modelId", used("modelId", "driverDeployment", "deploymentId = driverDeployment.id")},
        {"DeleteDriverRequest.driverId",
         "SELECT id FROM driver WHERE builtIn = 0 AND id NOT IN (SELECT driverId FROM driverDeployment)"},
        {"RemoveAlternateDriverRequest.modelId", "SELECT modelId FROM alternateModel"},
        {"RemoveAlternateDriverRequest.alternateModelId", "SELECT alternateModelId FROM alternateModel"},
        {"alternateModelId", "SELECT id FROM driverModel"},
        {"driverId", used("driverId", "driverDeployment", "deploymentId = driverDeployment.id")},
        {"AddBuiltInDriverRequest.modelId",
         "SELECT id FROM driverModel WHERE id NOT IN (SELECT modelId FROM driver WHERE builtIn = 1)"},
        {"AddAlternateDriverRequest.alternateModelId", "SELECT id FROM driverModel WHERE id NOT IN (SELECT "
                                                       "alternateModelId FROM alternateModel) ORDER BY rowid DESC"},
        {"osId", "SELECT id FROM operatingSystem"},
        {"deploymentId", "SELECT id FROM driverDeployment"},
        {"driverMapId", used("deploymentId", "record", "queueNumber = record.number")},
        {"configId", used("configuration.id", "configuration", "configurationNumber = configuration.number")},
        {"ownerId", "SELECT groupId FROM ruleEntry WHERE groupId IS NOT NULL"},
        {"planId", "SELECT planId FROM priceEntry"},
        {"DeletePricePlanRequest.id", "SELECT id FROM pricePlan"},
        {"PricePlanRecord.id", "SELECT id FROM pricePlan"},
        {"DeleteRuleGroupRequest.id", "SELECT id FROM ruleGroup"},
        {"RuleGroupRecord.id", "SELECT id FROM ruleGroup"},
        {"RemoveRuleEntryRequest.id", "SELECT id FROM ruleEntry"},
        {"RuleEntryRecord.id", "SELECT id FROM ruleEntry"},
        {"GetPageLimitRequest.id", "SELECT id FROM pageLimit"},
        {"DeletePageLimitRequest.id", "SELECT id FROM pageLimit"},
        {"PageLimitRecord.id", "SELECT id FROM pageLimit"},
        {"DeleteAffectedRequest.id", "SELECT id FROM affected"},
        {"WriteAffectedRequest.id", "SELECT id FROM affected"},
        {"UserMessageRecord.id", "SELECT id FROM userMessage WHERE builtIn = 0"},
        {"ShortIdRecord.id", "SELECT id FROM shortId"},
        {"DeleteShortIdRequest.id", "SELECT id FROM shortId"},
        {"reportId", "SELECT reportId FROM inventoryReport"},
        {"ListInventoryModelsRequest.id", "SELECT reportId FROM inventoryReport"},
        {"ListInventoryPrintersRequest.id", "SELECT reportId FROM inventoryReport"},
        {"schemaId", "SELECT schemaId FROM migrationPlan"},
        {"rangeId", "SELECT rangeId FROM ipRange"},
    };
    return all;
}

// The look-ups on the estate's own connection.
class Lookups {
public:
    explicit Lookups(sqlite3* connection) : connection_(connection) {}

    std::string first(const std::string& sql) {
        const auto query = queries_.try_emplace(sql, connection_, sql + " LIMIT 1").first;
        auto rows = query->second.run();
        return rows.next() ? std::string(rows.text(0)) : std::string();
    }

private:
    sqlite3* connection_;
    std::map<std::string, server::Query, std::less<>> queries_;
};

} // namespace

KnownText idsOf(server::StoreConnection& connection) {
    return [&connection](const protocol::RecordLayout& record, const protocol::FieldInfo& field) {
        auto place = places().find(std::string(record.name) + "." + std::string(field.name));
        if (place == places().end()) {
            place = places().find(field.name);
        }
        return place == places().end() ? std::string() : connection.table<Lookups>().first(place->second);
    };
}

} // namespace adversity
