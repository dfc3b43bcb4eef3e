#include "queues/DialogStatus.h"

#include <array>
#include <cstddef>

namespace queues {
namespace {

constexpr std::u16string_view unknown = u"None";

template <std::size_t count>
std::u16string_view wordOfDigit(const std::array<std::u16string_view, count>& words, std::uint8_t digit) {
    return digit >= u'0' && digit < u'0' + count ? words[digit - u'0'] : unknown;
}

} // namespace

std::u16string_view physicalStatusWord(std::uint8_t status) {
    static constexpr std::array<std::u16string_view, 10> words{u"OK",
                                                               u"Warning: Low Paper",
                                                               u"Warning: Low Toner",
                                                               u"Warning: Service Needed",
                                                               u"Error: No Paper",
                                                               u"Error: No Toner",
                                                               u"Error: Offline",
                                                               u"Error: Paper Jam",
                                                               u"Error: Door Open",
                                                               u"Error: No Contact"};
    return wordOfDigit(words, status);
}

std::u16string_view printingStatusWord(std::uint8_t status) {
    static constexpr std::array<std::u16string_view, 5> words{u"Idle", u"Dispatcher", u"Connecting Client",
                                                              u"Connecting Printer", u"Printing"};
    return wordOfDigit(words, status);
}

std::optional<console::RowState> stateOf(std::uint8_t physicalStatus, std::uint8_t printingStatus) {
    const auto known = [](std::u16string_view word) { return word == unknown ? std::u16string_view() : word; };
    console::RowState state{
        .words = {known(physicalStatusWord(physicalStatus)), known(printingStatusWord(printingStatus))}};
    if (state.words[0].empty() && state.words[1].empty()) {
        return std::nullopt;
    }
    state.severity = state.words[0].starts_with(u"Error:")     ? console::Severity::error
                     : state.words[0].starts_with(u"Warning:") ? console::Severity::warning
                                                               : console::Severity::none;
    return state;
}

} // namespace queues
