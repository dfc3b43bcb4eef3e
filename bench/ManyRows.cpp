#include "bench/ManyRows.h"

#include "bench/ServerProcess.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>

#include <map>
#include <stdexcept>

namespace bench {
namespace {

// The columns of a copy that differ from the copied row; i is the number of the copy.
using Differences = std::map<std::string, std::string>;

const std::string newId = "printf('%08x-6d61-4e79-a230-000000000000', i)";
const std::string newAddress = "printf('10.%d.%d.%d', i >> 16, (i >> 8) & 255, i & 255)";

std::string newKey(const std::string& column) {
    return "CAST(sample." + column + " || printf('%08d', i) AS BLOB)";
}

const std::string anyKey = "CAST(printf('%08d', i) AS BLOB)";

class Filler {
public:
    Filler(SQLite::Database& database, int rows) : database_(database), rows_(rows) {}

    // Copies the first row that the condition selects.
    void copy(const std::string& table, const std::string& condition, const Differences& differences) {
        std::string columns;
        std::string values;
        SQLite::Statement infos(database_, "SELECT name, type, pk, (SELECT count(*) FROM pragma_table_info(?1) WHERE "
                                           "pk > 0) FROM pragma_table_info(?1)");
        infos.bind(1, table);
        while (infos.executeStep()) {
            const std::string name = infos.getColumn(0);
            const bool isRowId = infos.getColumn(1).getString() == "INTEGER" && infos.getColumn(2).getInt() == 1 &&
                                 infos.getColumn(3).getInt() == 1;
            const auto difference = differences.find(name);
            columns += (columns.empty() ? "" : ", ") + name;
            values += values.empty() ? "" : ", ";
            values += difference != differences.end() ? difference->second : isRowId ? "NULL" : "sample." + name;
        }
        run("WITH RECURSIVE copies (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM copies WHERE i < " +
                std::to_string(rows_) + ") INSERT INTO " + table + " (" + columns + ") SELECT " + values +
                " FROM (SELECT * FROM " + table + " WHERE " + condition + " LIMIT 1) AS sample, copies",
            table);
    }

    // Inserts the given number of rows from the query.
    void insert(const std::string& table, const std::string& query) {
        run("INSERT OR IGNORE INTO " + table + " " + query + " LIMIT " + std::to_string(rows_), table);
    }

    std::string ask(const std::string& query) {
        SQLite::Statement statement(database_, query);
        if (!statement.executeStep()) {
            throw std::runtime_error("The sample estate has no answer to " + query);
        }
        return statement.getColumn(0).getString();
    }

private:
    void run(const std::string& sql, const std::string& table) {
        if (database_.exec(sql) == 0) {
            throw std::runtime_error("The sample estate has nothing to copy in the table " + table);
        }
    }

    SQLite::Database& database_;
    int rows_;
};

std::string literal(const std::string& text) {
    return "'" + text + "'";
}

// A queue of a printer whose model has a deployment and a configuration.
void findOwners(Filler& filler, ManyRows::Owners& owners) {
    owners.queue = filler.ask("SELECT queueId FROM queueModel WHERE modelId IN (SELECT modelId FROM driverDeployment) "
                              "AND modelId IN (SELECT modelId FROM configuration) AND queueId IN "
                              "(SELECT id FROM record WHERE recordType = 1) ORDER BY queueNumber");
    owners.printer = filler.ask("SELECT printerId FROM record WHERE id = " + literal(owners.queue));
    owners.model = filler.ask("SELECT modelId FROM queueModel WHERE queueId = " + literal(owners.queue));
    const auto ofModel = " WHERE modelId = " + literal(owners.model) + " ORDER BY number";
    owners.brand = filler.ask("SELECT brandId FROM driverModel WHERE id = " + literal(owners.model));
    owners.deployment = filler.ask("SELECT id FROM driverDeployment" + ofModel);
    owners.driver = filler.ask("SELECT driverId FROM driverDeployment" + ofModel);
    owners.configuration = filler.ask("SELECT id FROM configuration" + ofModel);
    owners.program = filler.ask("SELECT id FROM alarmProgram WHERE kind = 0 ORDER BY number");
    owners.report = filler.ask("SELECT reportId FROM inventoryReport WHERE number IN (SELECT report FROM "
                               "inventoryEntry WHERE local = 0) AND number IN (SELECT report FROM inventoryEntry "
                               "WHERE local = 1) ORDER BY number");
    owners.ruleGroup = filler.ask("SELECT groupId FROM ruleEntry WHERE groupId IS NOT NULL ORDER BY number");
    owners.pricePlan = filler.ask("SELECT planId FROM priceEntry ORDER BY planId");
    owners.region = std::stoi(filler.ask("SELECT regionId FROM record WHERE id = " + literal(owners.printer)));
    owners.localRegion = std::stoi(filler.ask("SELECT regionId FROM record WHERE recordType = 6"));
}

void fillRecords(Filler& filler, const ManyRows::Owners& owners) {
    filler.copy("region", "kind = 0 AND parentId IS NULL", {{"nameKey", newKey("nameKey")}});
    const Differences another{{"id", "printf('%08x-6d61-4e79-a23%d-000000000000', i, sample.recordType)"},
                              {"nameKey", newKey("nameKey")},
                              {"regionId", std::to_string(owners.region)}};
    auto printer = another;
    printer["ip"] = newAddress;
    auto local = another;
    local["regionId"] = std::to_string(owners.localRegion);
    filler.copy("record", "id = " + literal(owners.printer), printer);
    filler.copy("record", "id = " + literal(owners.queue), another);
    filler.copy("record", "recordType = 3", another);
    filler.copy("record", "recordType = 6", local);
}

void fillDrivers(Filler& filler, const ManyRows::Owners& owners) {
    const auto isModel = "modelId = " + literal(owners.model);
    const Differences named{{"id", newId}, {"nameKey", newKey("nameKey")}};
    filler.copy("driverBrand", "1", named);
    filler.copy("driverModel", "brandId = " + literal(owners.brand), named);
    filler.insert("alternateModel", "SELECT " + literal(owners.model) + ", id, nameKey FROM driverModel WHERE id <> " +
                                        literal(owners.model) + " ORDER BY rowid DESC");
    filler.copy("driver", isModel + " AND builtIn = 0", {{"id", newId}, {"versionKey", newKey("versionKey")}});
    filler.copy("driverDeployment", "driverId = " + literal(owners.driver),
                {{"id", newId}, {"localeKey", newKey("localeKey")}});
    filler.copy("configuration", isModel, named);
    filler.insert("queueConfiguration",
                  "SELECT record.number, " + literal(owners.deployment) +
                      ", (SELECT number FROM configuration WHERE id = " + literal(owners.configuration) +
                      "), nameKey FROM record WHERE printerId = " + literal(owners.printer) +
                      " ORDER BY record.number DESC");
}

void fillTheRest(Filler& filler, const ManyRows::Owners& owners) {
    const Differences named{{"id", newId}, {"nameKey", newKey("nameKey")}};
    filler.copy("emailRecipient", "active = 1", named);
    filler.copy("alarmProgram", "kind = 0", named);
    filler.insert("programAction", "SELECT NULL, 'many-' || number, " + literal(owners.program) +
                                       ", 'low-paper', 1, id FROM emailRecipient ORDER BY number DESC");
    filler.copy("inventoryReport", "reportId = " + literal(owners.report), {{"reportId", newId}});
    const auto ofReport =
        "report = (SELECT number FROM inventoryReport WHERE reportId = " + literal(owners.report) + ")";
    for (const auto* local : {"0", "1"}) {
        filler.copy("inventoryEntry", ofReport + " AND local = " + local,
                    {{"entryId", newId},
                     {"addressKey", anyKey},
                     {"nameKey", newKey("nameKey")},
                     {"modelKey", anyKey},
                     {"workstationKey", newKey("workstationKey")}});
    }
    filler.copy("inventoryModel", ofReport, {{"modelKey", newKey("modelKey")}});
    filler.copy("migrationPlan", "1",
                {{"schemaId", newId}, {"schemaKey", newKey("schemaKey")}, {"addressKey", anyKey}});
    filler.copy("ipRange", "1", {{"rangeId", newId}, {"nameKey", newKey("nameKey")}});
    for (const auto* table : {"ruleGroup", "affected", "pageLimit", "pricePlan", "shortId", "userMessage"}) {
        filler.copy(table, "1", named);
    }
    filler.copy("ruleEntry", "groupId = " + literal(owners.ruleGroup), {{"id", newId}});
    filler.copy("priceEntry", "planId = " + literal(owners.pricePlan), {{"position", "100000 + i"}, {"id", newId}});
}

} // namespace

ManyRows::ManyRows(const std::filesystem::path& folder, int rows)
    : database_(folder / ("rows-" + std::to_string(rows) + ".db")), rows_(rows) {
    ServerProcess(database_, {"--sample", "small"}).stop();
    SQLite::Database database(database_.string(), SQLite::OPEN_READWRITE);
    database.exec("PRAGMA foreign_keys = ON");
    SQLite::Transaction transaction(database);
    Filler filler(database, rows);
    findOwners(filler, owners_);
    fillRecords(filler, owners_);
    fillDrivers(filler, owners_);
    fillTheRest(filler, owners_);
    transaction.commit();
}

} // namespace bench
