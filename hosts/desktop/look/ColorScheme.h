#pragma once

#include <QPalette>
#include <QString>

#include <cstdint>
#include <optional>

namespace desktop {

// Light or dark windows, or whichever the system uses.
enum class ColorScheme : std::uint8_t { system, light, dark };

// "light", "dark" or "system".
std::optional<ColorScheme> colorSchemeNamed(const QString& name);

// Applies to the whole program, at any time.
void applyColorScheme(ColorScheme look);
// The one applied last.
ColorScheme appliedColorScheme();

// The colours of a box that can be read and not changed: its ground is that of disabled boxes.
QPalette readOnlyPalette();

} // namespace desktop
