#pragma once

#include "server/store/StoreConnection.h"

namespace server {

// Fills an empty database with a sample estate that is the same each time: each domain adds its own records. Runs
// inside the caller's transaction.
class SampleEstate {
public:
    explicit SampleEstate(StoreConnection& connection) : connection_(connection) {}

    // A few offices to explore: regions three levels deep, one with only regions, one with only printers, one with both
    // and one empty, and some of everything else.
    void fillSmall();

    // The given number of printers, each with a queue: up to half of them, but at most ten thousand, in the one region
    // "Central Print Hub", the others in offices of two hundred each.
    void fill(int printers);

private:
    // What the regions and printers refer to, and what refers to them.
    void addDrivers(int printers);
    void addTheRest(int printers);

    StoreConnection& connection_;
};

} // namespace server
