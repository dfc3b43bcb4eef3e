#pragma once

#include "hosts/desktop/activity/Operations.h"

#include <QString>

#include <optional>
#include <vector>

namespace desktop {

// The names in a path such as "Printers/Berlin"; a slash within a name is written "\/", a backslash "\\". Nothing when
// a backslash stands before anything else or a name is empty.
std::optional<std::vector<QString>> namesInPath(const QString& path);

// Opens the tree along the path, which begins at the branches of the print server, and selects what stands at its end.
// What went wrong, for people; nothing when it is selected.
std::optional<QString> openPath(Operations& operations, const QString& path);

} // namespace desktop
