#pragma once

#include "wire/Text.h"

#include <QString>

namespace desktop {

QString toQString(wire::WideStringView text);
QString toQString(std::string_view utf8);
wire::WideString toWideString(const QString& text);

// A text as a list, a tree or a label shows it: one line of plain text without line breaks or characters that change
// the direction of the text around it, cut at a length that nobody can see.
QString oneLine(wire::WideStringView text);

// A tool tip that shows the text unchanged: tool tips would take some texts for markup.
QString plainToolTip(const QString& text);

} // namespace desktop
