#pragma once

#include "server/store/Query.h"

#include <string>
#include <vector>

namespace server {

// A printer of the old Windows estate, as seen on a workstation or a print server.
struct OldPrinter {
    std::int64_t workstation = 0; // the number of the workstation that it belongs to, or 0
    std::int64_t server = 0;      // likewise
    std::u16string windowsName;
    std::string ip; // empty for one connected to a port of its host
    std::string port;
    std::u16string model;
    std::u16string location;
    std::u16string comment;
    bool local = false;
    bool shared = false;
    std::string lastSeen; // like "2014-03-05 17:04:09"
};

// What is known about the old estate: workstations, print servers, their printers and who uses which. Throws
// StoreError.
class OldEstateTable {
public:
    explicit OldEstateTable(sqlite3* connection);

    // These return the number of the added row.
    std::int64_t addWorkstation(const std::u16string& name, const std::string& ip, const std::string& lastSeen);
    std::int64_t addServer(const std::u16string& name, const std::string& ip, const std::string& lastSeen);
    std::int64_t addPrinter(const OldPrinter& printer);
    void addUse(std::int64_t printer, std::int64_t workstation);

    // The printers last seen between two dates, in the order in which they were added. Columns: number, windowsName,
    // ip, port, model, location, comment, local, shared, and the name and the address of the host.
    [[nodiscard]] Rows seenBetween(const std::string& from, const std::string& to) { return seen_.run(from, to); }
    // The workstations that use a printer, by their numbers.
    [[nodiscard]] std::vector<std::int64_t> clientsOf(std::int64_t printer);

private:
    Query addWorkstation_;
    Query addServer_;
    Query addPrinter_;
    Query addUse_;
    Query seen_;
    Query clients_;
};

} // namespace server
