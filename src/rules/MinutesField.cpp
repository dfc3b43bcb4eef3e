#include "rules/MinutesField.h"

#include <array>
#include <charconv>
#include <limits>
#include <string>

namespace rules {
namespace {

constexpr std::size_t daysRow = 0;
constexpr std::size_t hoursRow = 1;
constexpr std::size_t minutesRow = 2;

struct Unit {
    const char16_t* label;
    std::uint32_t minutes;
};
constexpr std::array<Unit, 3> units{{{u"days", 1440}, {u"hours", 60}, {u"minutes", 1}}};

std::size_t unitFor(std::uint32_t length) {
    if (length % units[daysRow].minutes == 0) {
        return daysRow;
    }
    return length % units[hoursRow].minutes == 0 ? hoursRow : minutesRow;
}

} // namespace

MinutesField::MinutesField(forms::Container& container, const forms::Control& owner, std::u16string_view remarkText)
    : number(container, u"", {.digitsOnly = true}), unit(container, u""), remark(container, u"", remarkText) {
    number.setBeside(owner);
    unit.setBeside(number);
    remark.setBeside(unit);
}

void MinutesField::open() {
    for (const Unit& each : units) {
        unit.addItem(each.label);
    }
}

void MinutesField::show(std::optional<std::uint32_t> length) {
    const std::size_t chosen = length ? unitFor(*length) : minutesRow;
    unit.select(chosen);
    number.setText(length ? wire::toWide(std::to_string(*length / units[chosen].minutes)) : wire::WideString());
}

void MinutesField::fillIfEmpty() {
    if (number.text().empty()) {
        number.setText(u"3");
        unit.select(hoursRow);
    }
}

std::optional<std::uint32_t> MinutesField::minutes() const {
    const std::string text = wire::toUtf8(number.text());
    std::uint32_t value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    const auto chosen = unit.selection();
    if (read.ec != std::errc() || !chosen) {
        return std::nullopt;
    }
    const std::uint64_t length = std::uint64_t{value} * units.at(*chosen).minutes;
    return length <= std::numeric_limits<std::uint32_t>::max() ? std::optional(static_cast<std::uint32_t>(length))
                                                               : std::nullopt;
}

void MinutesField::setEnabled(bool enabled) {
    number.setEnabled(enabled);
    unit.setEnabled(enabled);
    remark.setEnabled(enabled);
}

} // namespace rules
