#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace desktop {

// Light or dark windows, or as the system has them.
enum class ColorScheme : std::uint8_t { system, light, dark };

// "light", "dark" or "system".
std::optional<ColorScheme> colorSchemeNamed(const QString& name);

// For the whole program, before its first window.
void applyColorScheme(ColorScheme look);

} // namespace desktop
