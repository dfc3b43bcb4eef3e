#include "server/inventory/FoundPrinterList.h"

#include "protocol/inventory/InventoryPrinter.h"
#include "protocol/inventory/IpRange.h"
#include "protocol/inventory/Schema.h"
#include "server/inventory/OwnPrinters.h"
#include "server/inventory/PlanCover.h"

#include <fmt/format.h>

namespace server {

namespace {

namespace action = protocol::schemaAction;
namespace range = protocol::rangeType;

// A wide text as an SQL literal: the bytes of its units.
std::string wideLiteral(std::u16string_view text) {
    std::string literal = "x'";
    for (const char16_t unit : text) {
        literal += fmt::format("{:02x}{:02x}", unit & 0xFFU, static_cast<unsigned>(unit) >> 8U);
    }
    return literal + "'";
}

std::string whenIs(std::int32_t value, std::u16string_view text) {
    return " WHEN " + std::to_string(value) + " THEN " + wideLiteral(text);
}

std::string actionText() {
    return "CASE plan.action" + whenIs(action::ignore, u"Ignore") + whenIs(action::reinstall, u"Reinstall") +
           whenIs(action::remove, u"Delete") + " ELSE x'' END";
}

std::string rangeText() {
    return "CASE entry.rangeType" + whenIs(range::migrate, u"Migrate") + whenIs(range::migrateLocal, u"Migrate Local") +
           whenIs(range::forceMigrate, u"Force Migrate") + whenIs(range::forceMigrateLocal, u"Force Migrate Local") +
           " ELSE x'' END";
}

// A name that may be missing, cut so that a printer with all its names fits into one frame.
std::string shortName(const std::string& column) {
    return "substr(ifnull(" + column + ", x''), 1, 8000)";
}

std::string selectRows() {
    return "SELECT entry.entryId, entry.windowsName, entry.printerIp, entry.printerPort, entry.location, "
           "entry.comment, entry.clientCount, entry.model, " +
           shortName("printer.name") + ", ifnull(printer.id, ''), " + shortName("queue.name") +
           ", ifnull(queue.id, ''), entry.workstation, " + shortName("plan.schemaName") + ", " + actionText() + ", " +
           rangeText() + " FROM inventoryEntry AS entry LEFT JOIN record AS printer ON printer.number = " +
           OwnPrinters::printerOfEntry() +
           " LEFT JOIN record AS queue ON queue.number = (SELECT own.number FROM record AS own "
           "WHERE own.printerId = printer.id ORDER BY own.nameKey, own.number LIMIT 1)"
           " LEFT JOIN migrationPlan AS plan ON plan.number = " +
           planCover::planOfEntry();
}

} // namespace

FoundPrinterList::View::View(sqlite3* connection, const std::string& where, const std::string& order)
    : count(connection, "SELECT count(*) FROM inventoryEntry AS entry" + where),
      rows(connection, selectRows() + where + " ORDER BY " + order + ", entry.number") {}

FoundPrinterList::Kind::Kind(sqlite3* connection, bool local, const std::string& order, const std::string& filterBy)
    : all(connection, " WHERE entry.report = ?1 AND entry.local = " + std::to_string(local ? 1 : 0), order),
      filtered(connection,
               " WHERE entry.report = ?1 AND entry.local = " + std::to_string(local ? 1 : 0) + " AND nameMatches(" +
                   filterBy + ", ?2)",
               order) {}

FoundPrinterList::FoundPrinterList(sqlite3* connection)
    : kinds_{{Kind(connection, false, "entry.addressKey, entry.nameKey", "entry.printerIp"),
              Kind(connection, false, "entry.modelKey, entry.nameKey", "entry.modelKey"),
              Kind(connection, false, "entry.nameKey", "entry.nameKey"),
              Kind(connection, true, "entry.workstationKey, entry.nameKey", "entry.workstationKey"),
              Kind(connection, true, "entry.modelKey, entry.nameKey", "entry.modelKey")}} {
    static_assert(protocol::foundListKind::byIp == 0 && protocol::foundListKind::localByModel == 4);
}

FoundPrinterList::Kind* FoundPrinterList::kindOf(std::uint16_t listKind) {
    return listKind < kinds_.size() ? &kinds_[listKind] : nullptr;
}

Listing FoundPrinterList::list(std::uint16_t listKind, std::int64_t report) {
    auto* const kind = kindOf(listKind);
    if (kind == nullptr) {
        return {};
    }
    auto count = kind->all.count.run(report);
    return {.count = count.next() ? count.number(0) : 0, .rows = kind->all.rows.run(report)};
}

Listing FoundPrinterList::filter(std::uint16_t listKind, std::int64_t report, const NamePattern& pattern) {
    auto* const kind = kindOf(listKind);
    if (kind == nullptr) {
        return {};
    }
    auto count = kind->filtered.count.run(report, pattern.key());
    return {.count = count.next() ? count.number(0) : 0, .rows = kind->filtered.rows.run(report, pattern.key())};
}

} // namespace server
