#pragma once

#include "server/Estate.h"

#include <random>

namespace server {

// Fills an empty database with an invented estate that is the same each time. Runs inside of the caller's transaction.
class SampleEstate {
public:
    explicit SampleEstate(Estate& estate) : estate_(estate) {}

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
    [[nodiscard]] std::string newId();
    [[nodiscard]] std::uint32_t below(std::uint32_t bound);
    template <class List>
    [[nodiscard]] const auto& anyOf(const List& list) {
        return list[below(static_cast<std::uint32_t>(list.size()))];
    }

    Estate& estate_;
    std::mt19937 random_; // the same numbers in each run
    std::uint32_t made_ = 0;
};

} // namespace server
