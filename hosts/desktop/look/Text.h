#pragma once

#include "wire/Text.h"

#include <QString>

namespace desktop {

QString toQString(wire::WideStringView text);
QString toQString(std::string_view utf8);
wire::WideString toWideString(const QString& text);

// What a list, a tree or a label shows of a text: one line of plain text without anything that breaks it or turns the
// direction of its surroundings, and not longer than what anybody can see.
QString oneLine(wire::WideStringView text);

// A tool tip that shows the text as it stands: tool tips would take some texts for markup.
QString plainToolTip(const QString& text);

} // namespace desktop
