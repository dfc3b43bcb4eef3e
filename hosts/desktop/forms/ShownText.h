#pragma once

#include "forms/AccessKeys.h"
#include "wire/Text.h"

#include <QString>

namespace desktop {

// The text unit by unit, whatever it holds, and back.
QString exactText(wire::WideStringView text);
wire::WideString exactText(const QString& text);

// The text as a list or a menu shows it: on one line, control characters as their pictures, cut where nobody reads on.
QString shownLine(wire::WideStringView text);
// For texts that have a place of their own: with their line breaks, without other control characters, cut where nobody
// reads on. What has no blanks may be broken anywhere once it is wider than a dialog.
QString shownText(wire::WideStringView text);

// A text whose ampersands are not taken for access keys.
QString withoutAccessKey(QString text);
// A label on one line, with its access key marked.
QString markedLine(const forms::KeyedLabel& label);

} // namespace desktop
