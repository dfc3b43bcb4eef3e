#pragma once

#include "shell/Table.h"

#include <QString>

#include <cstdint>
#include <optional>

class QWidget;

namespace desktop {

enum class ListFormat : std::uint8_t { csv, json, text };

// By the extension of the file's name; CSV for unknown ones.
ListFormat listFormatOf(const QString& file);

// Writes the list to the file, replacing it. Returns an error text, or nothing on success. If writing fails, the old
// file is kept.
std::optional<QString> writeList(const shell::Table& table, const QString& file, ListFormat format);

// Asks for the file and writes it. Returns the text for the status bar; empty when the user cancelled.
QString exportList(const shell::Table& table, const QString& name, QWidget* owner);

} // namespace desktop
