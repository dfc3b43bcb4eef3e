#include "wire/LocaleDate.h"

#include <array>
#include <chrono>
#include <clocale>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <utility>

#include <locale.h>

namespace wire {

namespace {

// The locale of the user's environment for times: LC_ALL takes precedence over LC_TIME, and LC_TIME over LANG; the
// plain one when the environment names a locale that isn't installed.
class UserLocale {
public:
    UserLocale() : locale_(newlocale(LC_TIME_MASK | LC_CTYPE_MASK, "", nullptr)) {
        if (locale_ == nullptr) {
            locale_ = newlocale(LC_ALL_MASK, "C", nullptr);
        }
    }
    ~UserLocale() {
        if (locale_ != nullptr) {
            freelocale(locale_);
        }
    }
    UserLocale(const UserLocale&) = delete;
    UserLocale& operator=(const UserLocale&) = delete;

    [[nodiscard]] std::string format(const char* pattern, const std::tm& time) const {
        std::array<char, 256> text{};
        if (locale_ == nullptr) {
            return {};
        }
        return {text.data(), strftime_l(text.data(), text.size(), pattern, &time, locale_)};
    }

private:
    locale_t locale_;
};

// Loading a locale reads files, so it is kept until the environment names another one.
const UserLocale& userLocale() {
    thread_local std::string loadedFor;
    thread_local std::unique_ptr<UserLocale> locale;
    std::string wanted;
    for (const char* const name : {"LC_ALL", "LC_TIME", "LC_CTYPE", "LANG"}) {
        const char* const value = std::getenv(name);
        wanted += value == nullptr ? "" : value;
        wanted += '\n';
    }
    if (!locale || wanted != loadedFor) {
        locale = std::make_unique<UserLocale>();
        loadedFor = std::move(wanted);
    }
    return *locale;
}

} // namespace

std::string shortDate(const DateNumbers& numbers) {
    using namespace std::chrono;
    if (!isDay(numbers)) {
        return {};
    }
    const year_month_day date{year{numbers.year}, month{numbers.month}, day{numbers.day}};
    std::tm time{};
    time.tm_year = numbers.year - 1900;
    time.tm_mon = numbers.month - 1;
    time.tm_mday = numbers.day;
    time.tm_wday = static_cast<int>(weekday{sys_days{date}}.c_encoding());
    return userLocale().format("%x", time);
}

std::string timeOfDay(const DateNumbers& numbers) {
    if (!isTimeOfDay(numbers)) {
        return {};
    }
    std::tm time{};
    time.tm_hour = numbers.hour;
    time.tm_min = numbers.minute;
    time.tm_sec = numbers.second;
    return userLocale().format("%X", time);
}

} // namespace wire
