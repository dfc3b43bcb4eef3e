#pragma once

#include "platform/Locale.h"

namespace common {

// The locale of the user's environment when this object was made: LC_ALL takes precedence over LC_NUMERIC, and
// LC_NUMERIC over LANG; the plain one when the environment names none, or one that isn't installed. The locale of the
// process does not matter.
class SystemLocale final : public platform::Locale {
public:
    SystemLocale();

    [[nodiscard]] const platform::NumberFormat& numberFormat() const override { return numberFormat_; }

private:
    platform::NumberFormat numberFormat_;
};

} // namespace common
