#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace bench {

// The database of a sample estate with the given number of printers, all in one region so that one list contains them.
class Estate {
public:
    Estate(const std::filesystem::path& folder, int printers);

    [[nodiscard]] const std::filesystem::path& database() const { return database_; }
    [[nodiscard]] std::int32_t region() const { return region_; }

    // The id of one printer somewhere in the middle.
    [[nodiscard]] const std::string& printer() const { return printer_; }

private:
    void gatherPrinters();

    std::filesystem::path database_;
    std::int32_t region_ = 0;
    std::string printer_;
};

} // namespace bench
