#pragma once

#include <string>

// When a migration plan (the alias "plan") covers a printer of a report (the alias "entry"), in SQL: all that it names
// of the old printer has to agree, and it has to name more than a port.
namespace server::planCover {

// The number of the plan that decides about the entry: one that names the address before one that does not, then one
// that names the printer, then the one that names most, then the newest.
[[nodiscard]] std::string planOfEntry();

// The plan covers an entry of the report whose number is ?1.
[[nodiscard]] std::string coversSomethingInReport();

} // namespace server::planCover
