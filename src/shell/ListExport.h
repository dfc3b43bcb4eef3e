#pragma once

#include "shell/Table.h"

#include <cstddef>
#include <limits>
#include <ostream>

namespace shell {

// RFC 4180, in UTF-8: a line with the titles, quotes where needed, lines ending in CR and LF.
void writeCsv(std::ostream& out, const Table& table);

// {"columns": [...], "rows": [[...], ...]}, in UTF-8; cells as they are.
void writeJson(std::ostream& out, const Table& table);

constexpr std::size_t unlimitedWidth = std::numeric_limits<std::size_t>::max();

// Columns side by side for a terminal or a fixed-width font, in UTF-8: titles, a line below them, rows. Control
// characters are made visible. Lines that would be wider than the width, in cells of a terminal, are kept within it by
// cutting the widest columns; a few cells of each column always stay.
void writeText(std::ostream& out, const Table& table, std::size_t width);
void writeText(std::ostream& out, const Table& table);

} // namespace shell
