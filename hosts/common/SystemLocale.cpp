#include "hosts/common/SystemLocale.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <cuchar>
#include <utility>

#include <locale.h>

namespace common {
namespace {

const char* numericLocaleName() {
    for (const char* const name : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
        if (const char* const value = std::getenv(name); value != nullptr && *value != '\0') {
            return value;
        }
    }
    return "C";
}

// Makes a locale the current one of this thread for a while. Its character set is that of its numbers, whatever the
// environment says about texts, so that its separators can be read.
class LocaleInUse {
public:
    explicit LocaleInUse(const char* name)
        : locale_(newlocale(LC_NUMERIC_MASK | LC_CTYPE_MASK | LC_MONETARY_MASK, name, nullptr)) {
        if (locale_ != nullptr) {
            before_ = uselocale(locale_);
        }
    }
    ~LocaleInUse() {
        if (locale_ != nullptr) {
            uselocale(before_);
            freelocale(locale_);
        }
    }
    LocaleInUse(const LocaleInUse&) = delete;
    LocaleInUse& operator=(const LocaleInUse&) = delete;

    explicit operator bool() const { return locale_ != nullptr; }

private:
    locale_t locale_;
    locale_t before_ = nullptr;
};

// Converts text from the character set of the locale in use; empty when it is malformed.
wire::WideString toWideHere(const char* text) {
    constexpr auto nothingTaken = static_cast<std::size_t>(-3); // the second half of a pair
    wire::WideString wide;
    std::mbstate_t state{};
    const char* const end = text + std::strlen(text);
    while (text != end) {
        char16_t unit = 0;
        const std::size_t length = std::mbrtoc16(&unit, text, static_cast<std::size_t>(end - text), &state);
        if (length == 0 || (length > static_cast<std::size_t>(end - text) && length != nothingTaken)) {
            return {};
        }
        wide += unit;
        text += length == nothingTaken ? 0 : length;
    }
    return wide;
}

std::vector<std::uint8_t> groupsOf(const char* grouping) {
    std::vector<std::uint8_t> groups;
    for (; *grouping != '\0'; ++grouping) {
        if (*grouping == CHAR_MAX || *grouping < 0) {
            groups.push_back(0);
            break;
        }
        groups.push_back(static_cast<std::uint8_t>(*grouping));
    }
    return groups;
}

} // namespace

SystemLocale::SystemLocale() {
    const LocaleInUse locale(numericLocaleName());
    if (!locale) {
        return;
    }
    const lconv& conventions = *localeconv();
    if (auto separator = toWideHere(conventions.decimal_point); !separator.empty()) {
        numberFormat_.decimalSeparator = std::move(separator);
    }
    numberFormat_.thousandsSeparator = toWideHere(conventions.thousands_sep);
    if (!numberFormat_.thousandsSeparator.empty()) {
        numberFormat_.grouping = groupsOf(conventions.grouping);
    }
    // POSIX has no such setting for plain numbers; the one for money comes closest.
    if (conventions.frac_digits != CHAR_MAX && conventions.frac_digits >= 0) {
        numberFormat_.decimals = static_cast<unsigned char>(conventions.frac_digits);
    }
}

} // namespace common
