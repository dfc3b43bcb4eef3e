#pragma once

#include <string>

// SQL conditions for whether a migration plan (the alias "plan") covers a printer of a report (the alias "entry"):
// everything that it names about the old printer has to agree, and it has to name more than a port.
namespace server::planCover {

// The number of the plan that decides about the entry: plans that name the address come first, then those that name the
// printer, then the one that names most, then the newest.
[[nodiscard]] std::string planOfEntry();

// Whether the plan covers an entry of the report with the number ?1.
[[nodiscard]] std::string coversSomethingInReport();

} // namespace server::planCover
