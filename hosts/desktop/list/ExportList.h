#pragma once

#include "shell/Table.h"

#include <QString>

#include <cstdint>
#include <optional>

class QWidget;

namespace desktop {

enum class ListFormat : std::uint8_t { csv, json, text };

// By the ending of the file's name; CSV for any other.
ListFormat listFormatOf(const QString& file);

// Writes the list into the file, in place of what was there. What went wrong, for people; nothing when it is done. A
// file that can't be written as a whole stays as it was.
std::optional<QString> writeList(const shell::Table& table, const QString& file, ListFormat format);

// Asks for the file and writes it. What there is to say afterwards; empty when the person has thought better of it.
QString exportList(const shell::Table& table, const QString& name, QWidget* owner);

} // namespace desktop
