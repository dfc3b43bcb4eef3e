#pragma once

#include "forms/AccessKeys.h"
#include "wire/Text.h"

#include <QString>

namespace desktop {

// Converts the text unit by unit, whatever it contains, and back.
QString exactText(wire::WideStringView text);
wire::WideString exactText(const QString& text);

// The text as a list or a menu shows it: on one line, control characters as their pictures, cut at a length that nobody
// reads.
QString shownLine(wire::WideStringView text);
// The text as a box or a label of its own shows it: with line breaks, without other control characters, cut at a length
// that nobody reads. Words wider than a dialog may be broken anywhere.
QString shownText(wire::WideStringView text);

// A text whose ampersands are not taken for access keys.
QString withoutAccessKey(QString text);
// A label on one line, with its access key marked.
QString markedLine(const forms::KeyedLabel& label);

} // namespace desktop
