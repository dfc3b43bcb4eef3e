#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace desktop {

// Light or dark windows, or whichever the system uses.
enum class ColorScheme : std::uint8_t { system, light, dark };

// "light", "dark" or "system".
std::optional<ColorScheme> colorSchemeNamed(const QString& name);

// Applies to the whole program; call it before the first window is made.
void applyColorScheme(ColorScheme look);

} // namespace desktop
