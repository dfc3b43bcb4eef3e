#pragma once

#include "protocol/estate/Printer.h"
#include "server/estate/SampleRandom.h"
#include "server/store/StoreConnection.h"

namespace server {

// Adds sample regions with printers, queues, follow-print queues and local printers, the same each time. The driver
// sample must be added first. Runs inside the caller's transaction.
class RegionSample {
public:
    static constexpr int printersInSmall = 40;

    explicit RegionSample(StoreConnection& connection) : connection_(connection) {}

    // A few offices to explore: regions three levels deep, one with only regions, one with only printers, one with both
    // and one empty, and some of everything else.
    void fillSmall();

    // The given number of printers, each with a queue: up to half of them, but at most ten thousand, in the one region
    // "Central Print Hub", the others in offices of two hundred each.
    void fill(int printers);

private:
    struct Office {
        std::int32_t region = 0;
        std::u16string code;
    };

    std::int32_t addRegion(std::uint8_t kind, std::int32_t parentId, std::u16string_view name);
    void addPrinters(const Office& office, int count, int mostQueues);
    void addFollowQueue(const Office& office, int number);
    void addLocalPrinters(const Office& office, int count);

    [[nodiscard]] protocol::PrinterRecord makeRecord(const Office& office, std::uint16_t recordType,
                                                     std::u16string name);

    StoreConnection& connection_;
    SampleRandom random_;
    std::uint32_t made_ = 0;
};

} // namespace server
