#pragma once

#include "bench/ManyRows.h"
#include "client/CQVXAdminClass.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace bench {

// What one run of a list took.
struct ListRun {
    std::size_t records = 0;
    double seconds = 0;
    double secondsToFirst = 0; // until the first record was read
    double receiveCalls = 0;
    bool inOneMessage = false; // as regions are sent while they fit into one
};

// A list command of the catalogue, and how a console asks for the one with many records.
struct MeasuredList {
    std::string name;
    std::function<ListRun(client::CQVXAdminClass&, const ManyRows::Owners&)> run;
};

// Every list whose records can be many; the printers come first.
[[nodiscard]] std::vector<MeasuredList> measuredLists();

} // namespace bench
