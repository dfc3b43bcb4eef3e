#pragma once

#include "hosts/desktop/activity/Operations.h"

#include <QString>

#include <optional>
#include <vector>

namespace desktop {

// The names in a path such as "Printers/Berlin"; a slash within a name is written "\/", a backslash "\\". Empty when a
// backslash precedes anything else or a name is empty.
std::optional<std::vector<QString>> namesInPath(const QString& path);

// Opens the tree along the path, which starts at the branches of the print server, and selects the item at its end, or
// the row of the list with that name. Returns an error text, or nothing on success.
std::optional<QString> openPath(Operations& operations, const QString& path);

} // namespace desktop
