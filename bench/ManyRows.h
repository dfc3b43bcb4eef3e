#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace bench {

// The database of a small sample estate with the given number of extra rows in every table that a list reads. Where a
// list belongs to an owner, all rows have the same one, so that one list contains them all.
class ManyRows {
public:
    ManyRows(const std::filesystem::path& folder, int rows);

    [[nodiscard]] const std::filesystem::path& database() const { return database_; }
    [[nodiscard]] int rows() const { return rows_; }

    // The owners, by their ids.
    struct Owners {
        std::int32_t region = 0;      // of printers, queues and follow-print queues
        std::int32_t localRegion = 0; // of local printers
        std::string printer;          // of queues
        std::string queue;            // of configurations that it may use with each deployment
        std::string brand;            // of models and drivers
        std::string model;            // of alternates, drivers, deployments and configurations; the queue's
        std::string driver;           // of deployments
        std::string deployment;       // of configurations to choose from
        std::string configuration;    // of queues
        std::string program;          // of actions
        std::string report;           // of printers and models
        std::string ruleGroup;        // of rule entries
        std::string pricePlan;        // of prices
    };
    [[nodiscard]] const Owners& owners() const { return owners_; }

private:
    std::filesystem::path database_;
    int rows_;
    Owners owners_;
};

} // namespace bench
