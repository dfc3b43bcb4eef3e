#pragma once

#include "server/store/StoreConnection.h"

namespace server {

// Fills an empty database with an invented estate that is the same each time: each domain adds its own. Runs inside of
// the caller's transaction.
class SampleEstate {
public:
    explicit SampleEstate(StoreConnection& connection) : connection_(connection) {}

    // A few offices to look around in: regions three deep, of which one holds regions only, one printers only, one both
    // and one nothing, and some of everything else.
    void fillSmall();

    // So many printers, each with a queue: up to half of them, but at most ten thousand, in the one region "Central
    // Print Hub", the others over offices of two hundred.
    void fill(int printers);

private:
    // All that the regions and printers stand on, and all that stands on them.
    void addDrivers(int printers);
    void addTheRest(int printers);

    StoreConnection& connection_;
};

} // namespace server
