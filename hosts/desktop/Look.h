#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace desktop {

// Light or dark windows, or as the system has them.
enum class Look : std::uint8_t { system, light, dark };

// "light", "dark" or "system".
std::optional<Look> lookNamed(const QString& name);

// For the whole program, before its first window.
void applyLook(Look look);

} // namespace desktop
