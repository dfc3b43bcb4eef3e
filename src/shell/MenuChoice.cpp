#include "shell/MenuChoice.h"

#include "wire/CaseFold.h"

#include <algorithm>
#include <array>

namespace shell {
namespace {

bool canBeChosen(const MenuItem& item) {
    return !item.separator && !item.disabled;
}

// The product names such entries with one of these words in front.
bool removes(const MenuItem& item) {
    static constexpr std::array<wire::WideStringView, 2> words{u"delete", u"remove"};
    const wire::WideStringView text = item.text;
    return std::ranges::any_of(words, [text](wire::WideStringView word) {
        return wire::foldCase(text.substr(0, word.size())) == word &&
               (text.size() == word.size() || text[word.size()] == u' ');
    });
}

template <class Fits>
const MenuItem* firstOf(std::span<const MenuItem> menu, Fits fits) {
    const auto found = std::ranges::find_if(menu, fits);
    return found != menu.end() ? &*found : nullptr;
}

} // namespace

const MenuItem* openingEntry(std::span<const MenuItem> menu) {
    const MenuItem* const first = firstOf(menu, canBeChosen);
    return first != nullptr && !removes(*first) ? first : nullptr;
}

const MenuItem* removingEntry(std::span<const MenuItem> menu) {
    return firstOf(menu, [](const MenuItem& item) { return canBeChosen(item) && removes(item); });
}

} // namespace shell
