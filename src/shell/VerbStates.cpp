#include "shell/VerbStates.h"

#include <cstddef>
#include <optional>

namespace shell {
namespace {

std::optional<std::size_t> placeOf(console::Verb verb) {
    const auto place =
        static_cast<std::uint32_t>(verb) - static_cast<std::uint32_t>(console::Verb::open); // wraps for other numbers
    return place < 16 ? std::optional<std::size_t>(place) : std::nullopt;
}

} // namespace

console::Result VerbStates::SetVerbState(console::Verb verb, console::VerbState /*state*/, bool flag) {
    const auto place = placeOf(verb);
    if (!place) {
        return console::Result::failed;
    }
    offered_.set(*place, flag);
    return console::Result::ok;
}

console::Result VerbStates::GetVerbState(console::Verb verb, console::VerbState /*state*/, bool& flag) {
    flag = offers(verb);
    return placeOf(verb) ? console::Result::ok : console::Result::failed;
}

bool VerbStates::offers(console::Verb verb) const {
    const auto place = placeOf(verb);
    return place && offered_.test(*place);
}

bool VerbStates::takeChange() {
    const bool changed = offered_ != told_;
    told_ = offered_;
    return changed;
}

} // namespace shell
