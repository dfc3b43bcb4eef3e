#pragma once

#include "console/Locale.h"

namespace console {

// The locale of the user's environment, where LC_ALL goes before LC_NUMERIC and LC_NUMERIC before LANG, as it was when
// this object was made; the plain one when the environment names none, or one that isn't there. The locale of the
// process has no part in it.
class SystemLocale final : public Locale {
public:
    SystemLocale();

    const NumberFormat& numberFormat() const override { return numberFormat_; }

private:
    NumberFormat numberFormat_;
};

} // namespace console
