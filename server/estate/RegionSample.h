#pragma once

#include "protocol/estate/Printer.h"
#include "server/estate/SampleRandom.h"
#include "server/store/StoreConnection.h"

namespace server {

// Makes invented regions and printers, queues, follow-print queues and local printers in them, the same each time. The
// driver sample comes first. Runs inside of the caller's transaction.
class RegionSample {
public:
    static constexpr int printersInSmall = 40;

    explicit RegionSample(StoreConnection& connection) : connection_(connection) {}

    // A few offices to look around in: regions three deep, of which one holds regions only, one printers only, one both
    // and one nothing, and some of everything else.
    void fillSmall();

    // So many printers, each with a queue: up to half of them, but at most ten thousand, in the one region "Central
    // Print Hub", the others over offices of two hundred.
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
