#pragma once

#include "shell/Table.h"

class QString;

namespace desktop {

// Puts rows on the clipboard, as lines of text and as a table with titles for office programs.
void copyRows(const shell::Table& table);
// Puts a single text on the clipboard, as it is.
void copyText(const QString& text);

} // namespace desktop
