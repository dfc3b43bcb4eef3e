#pragma once

#include "shell/Table.h"

#include <ostream>

namespace shell {

// RFC 4180, in UTF-8: a line with the titles, quotes where needed, lines ending in CR and LF.
void writeCsv(std::ostream& out, const Table& table);

// {"columns": [...], "rows": [[...], ...]}, in UTF-8; cells as they are.
void writeJson(std::ostream& out, const Table& table);

// Columns side by side for a terminal or a fixed-width font, in UTF-8: titles, a line below them, rows. Control
// characters are made visible.
void writeText(std::ostream& out, const Table& table);

} // namespace shell
