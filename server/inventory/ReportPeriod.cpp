#include "server/inventory/ReportPeriod.h"

#include <fmt/format.h>

#include <chrono>
#include <sstream>

namespace server {

namespace {

constexpr const char* earliest = "0000-01-01 00:00:00";
constexpr const char* latest = "9999-12-31 23:59:59";

struct Day {
    int year = 0;
    int month = 0;
    int day = 0;

    [[nodiscard]] bool exists() const {
        return year >= 0 && year <= 9999 && month > 0 && day > 0 && (std::chrono::year(year) / month / day).ok();
    }
};

struct Time {
    int hour = 0;
    int minute = 0;
    int second = 0;

    [[nodiscard]] bool exists() const {
        return hour >= 0 && hour < 24 && minute >= 0 && minute < 60 && second >= 0 && second < 60;
    }
};

bool readThree(std::istream& in, char separator, int& first, int& second, int& third) {
    char one = 0;
    char two = 0;
    return in >> first >> one >> second >> two >> third && one == separator && two == separator;
}

// A fraction after the seconds is ignored.
std::optional<std::string> parseDate(wire::WideStringView text, const char* ifEmpty, Time time) {
    std::istringstream in(wire::toUtf8(text));
    in >> std::ws;
    if (in.eof()) {
        return ifEmpty;
    }
    Day day;
    if (!readThree(in, '-', day.year, day.month, day.day) || !day.exists()) {
        return std::nullopt;
    }
    in >> std::ws;
    if (!in.eof() && !(readThree(in, ':', time.hour, time.minute, time.second) && time.exists())) {
        return std::nullopt;
    }
    return fmt::format("{:04}-{:02}-{:02} {:02}:{:02}:{:02}", day.year, day.month, day.day, time.hour, time.minute,
                       time.second);
}

} // namespace

std::optional<ReportPeriod> ReportPeriod::parse(wire::WideStringView from, wire::WideStringView to) {
    auto first = parseDate(from, earliest, {.hour = 0, .minute = 0, .second = 0});
    auto last = parseDate(to, latest, {.hour = 23, .minute = 59, .second = 59});
    if (!first || !last) {
        return std::nullopt;
    }
    return ReportPeriod{std::move(*first), std::move(*last)};
}

} // namespace server
