#pragma once

#include "shell/Table.h"

namespace shell {

// Rows as other programs paste them.
struct ListClip {
    // A line for each row, cells with tabs between them; without titles. A control character within a cell is a blank,
    // so that each cell stays one cell.
    wire::WideString text;
    // A table with titles, for office programs. Texts are escaped; a line break within a cell stays one.
    wire::WideString html;
};

ListClip clipOf(const Table& table);

} // namespace shell
