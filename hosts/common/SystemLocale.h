#pragma once

#include "platform/Locale.h"

namespace common {

// The locale of the user's environment, where LC_ALL goes before LC_NUMERIC and LC_NUMERIC before LANG, as it was when
// this object was made; the plain one when the environment names none, or one that isn't there. The locale of the
// process has no part in it.
class SystemLocale final : public platform::Locale {
public:
    SystemLocale();

    const platform::NumberFormat& numberFormat() const override { return numberFormat_; }

private:
    platform::NumberFormat numberFormat_;
};

} // namespace common
