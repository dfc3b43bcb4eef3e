#pragma once

#include "shell/Target.h"

#include <QString>

#include <optional>

class QMimeData;

namespace desktop {

// What is dragged from the tree or the list: an item of this running program, and its name as text for other programs.
constexpr const char* dragFormat = "application/x-vantrel-target";

// The caller owns it.
QMimeData* makeDragData(const shell::Target& target, const QString& name);
// Empty when the data come from another program or are invalid.
std::optional<shell::Target> draggedTarget(const QMimeData* data);

} // namespace desktop
