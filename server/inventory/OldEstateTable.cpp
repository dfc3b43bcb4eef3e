#include "server/inventory/OldEstateTable.h"

namespace server {

namespace {

std::optional<std::int64_t> unlessZero(std::int64_t number) {
    return number == 0 ? std::nullopt : std::optional(number);
}

} // namespace

OldEstateTable::OldEstateTable(sqlite3* connection)
    : addWorkstation_(connection, "INSERT INTO oldWorkstation (name, ip, lastSeen) VALUES (?, ?, ?)"),
      addServer_(connection, "INSERT INTO oldServer (name, ip, lastSeen) VALUES (?, ?, ?)"),
      addPrinter_(connection, "INSERT INTO oldPrinter (workstation, server, windowsName, ip, port, model, location, "
                              "comment, local, shared, lastSeen) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      addUse_(connection, "INSERT OR IGNORE INTO oldUse (printer, workstation) VALUES (?, ?)"),
      seen_(connection,
            "SELECT printer.number, printer.windowsName, printer.ip, printer.port, printer.model, printer.location, "
            "printer.comment, printer.local, printer.shared, ifnull(workstation.name, server.name), "
            "ifnull(workstation.ip, server.ip) FROM oldPrinter AS printer "
            "LEFT JOIN oldWorkstation AS workstation ON workstation.number = printer.workstation "
            "LEFT JOIN oldServer AS server ON server.number = printer.server "
            "WHERE printer.lastSeen BETWEEN ? AND ? ORDER BY printer.number"),
      clients_(connection, "SELECT workstation FROM oldUse WHERE printer = ?") {}

std::int64_t OldEstateTable::addWorkstation(const std::u16string& name, const std::string& ip,
                                            const std::string& lastSeen) {
    return addWorkstation_.insert(name, ip, lastSeen);
}

std::int64_t OldEstateTable::addServer(const std::u16string& name, const std::string& ip, const std::string& lastSeen) {
    return addServer_.insert(name, ip, lastSeen);
}

std::int64_t OldEstateTable::addPrinter(const OldPrinter& printer) {
    return addPrinter_.insert(unlessZero(printer.workstation), unlessZero(printer.server), printer.windowsName,
                              printer.ip, printer.port, printer.model, printer.location, printer.comment, printer.local,
                              printer.shared, printer.lastSeen);
}

void OldEstateTable::addUse(std::int64_t printer, std::int64_t workstation) {
    addUse_.execute(printer, workstation);
}

std::vector<std::int64_t> OldEstateTable::clientsOf(std::int64_t printer) {
    std::vector<std::int64_t> clients;
    for (auto rows = clients_.run(printer); rows.next();) {
        clients.push_back(rows.number(0));
    }
    return clients;
}

} // namespace server
