#include "shell/FilterValue.h"

#include <charconv>
#include <chrono>
#include <string>

namespace shell {
namespace {

// Reads a date from the front to its end, which may be after the month, the day, the minute or the second.
class DateReader {
public:
    explicit DateReader(std::string_view text) : rest_(text) {}

    std::optional<NumberRange> read() {
        using namespace std::chrono;
        const auto years = number(4);
        const auto months = part("-", 1, 12);
        if (!years || !months) {
            return std::nullopt;
        }
        const auto theMonth = year{*years} / month{static_cast<unsigned>(*months)};
        if (rest_.empty()) {
            return range(sys_days(theMonth / 1), sys_days((theMonth + std::chrono::months{1}) / 1));
        }
        const auto days = part("-", 1, 31);
        if (!days) {
            return std::nullopt;
        }
        const auto date = theMonth / day{static_cast<unsigned>(*days)};
        return date.ok() ? withinDay(sys_days(date)) : std::nullopt;
    }

private:
    using Moment = std::chrono::sys_time<std::chrono::milliseconds>;

    static NumberRange range(Moment begin, Moment end) {
        return {.first = begin.time_since_epoch().count(), .last = end.time_since_epoch().count() - 1};
    }

    std::optional<NumberRange> withinDay(Moment day) {
        using namespace std::chrono;
        if (rest_.empty()) {
            return range(day, day + hours{24});
        }
        const auto hour = part(" T", 0, 23);
        const auto minute = part(":", 0, 59);
        if (!hour || !minute) {
            return std::nullopt;
        }
        const auto moment = day + hours{*hour} + minutes{*minute};
        if (rest_.empty()) {
            return range(moment, moment + minutes{1});
        }
        const auto second = part(":", 0, 59);
        if (!second || !rest_.empty()) {
            return std::nullopt;
        }
        return range(moment + seconds{*second}, moment + seconds{*second + 1});
    }

    // Two digits in these limits, after one of the separators.
    std::optional<int> part(std::string_view separators, int least, int most) {
        if (rest_.empty() || separators.find(rest_.front()) == std::string_view::npos) {
            return std::nullopt;
        }
        rest_.remove_prefix(1);
        const auto value = number(2);
        return value && *value >= least && *value <= most ? value : std::nullopt;
    }

    // Exactly that many digits.
    std::optional<int> number(std::size_t digits) {
        const auto text = rest_.substr(0, digits);
        if (text.size() < digits || text.find_first_not_of("0123456789") != std::string_view::npos) {
            return std::nullopt;
        }
        rest_.remove_prefix(digits);
        int value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }

    std::string_view rest_;
};

} // namespace

std::optional<NumberRange> numbersMeant(wire::WideStringView value) {
    const auto text = wire::toUtf8(value);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc() && end == text.data() + text.size()) {
        return NumberRange{.first = number, .last = number};
    }
    return DateReader(text).read();
}

} // namespace shell
