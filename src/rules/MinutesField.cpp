#include "rules/MinutesField.h"

#include <charconv>
#include <limits>
#include <string>

namespace rules {
namespace {

constexpr std::uint32_t aMinute = 1;
constexpr std::uint32_t anHour = 60;
constexpr std::uint32_t aDay = 1440;

std::uint32_t unitFor(std::uint32_t length) {
    if (length % aDay == 0) {
        return aDay;
    }
    return length % anHour == 0 ? anHour : aMinute;
}

} // namespace

MinutesField::MinutesField(forms::Container& container, const forms::Control& owner, std::u16string_view remarkText)
    : number(container, u"", {.digitsOnly = true}),
      unit(container, u"", {{aDay, u"days"}, {anHour, u"hours"}, {aMinute, u"minutes"}}),
      remark(container, u"", remarkText) {
    number.setBeside(owner);
    unit.setBeside(number);
    remark.setBeside(unit);
}

void MinutesField::show(std::optional<std::uint32_t> length) {
    const std::uint32_t chosen = length ? unitFor(*length) : aMinute;
    unit.selectValue(chosen);
    number.setText(length ? wire::toWide(std::to_string(*length / chosen)) : wire::WideString());
}

void MinutesField::fillIfEmpty() {
    if (number.text().empty()) {
        number.setText(u"3");
        unit.selectValue(anHour);
    }
}

std::optional<std::uint32_t> MinutesField::minutes() const {
    const std::string text = wire::toUtf8(number.text());
    std::uint32_t value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    const auto chosen = unit.value();
    if (read.ec != std::errc() || !chosen) {
        return std::nullopt;
    }
    const std::uint64_t length = std::uint64_t{value} * *chosen;
    return length <= std::numeric_limits<std::uint32_t>::max() ? std::optional(static_cast<std::uint32_t>(length))
                                                               : std::nullopt;
}

void MinutesField::setEnabled(bool enabled) {
    number.setEnabled(enabled);
    unit.setEnabled(enabled);
    remark.setEnabled(enabled);
}

} // namespace rules
