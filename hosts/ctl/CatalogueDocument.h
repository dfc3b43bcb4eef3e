#pragma once

#include <ostream>

namespace ctl {

// The last chapters of the protocol document, as Markdown: a table of all commands and one of their records.
void writeCatalogueDocument(std::ostream& out);

} // namespace ctl
