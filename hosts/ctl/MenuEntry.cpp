#include "hosts/ctl/MenuEntry.h"

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/PrintableText.h"

#include <algorithm>
#include <charconv>

namespace ctl {
namespace {

using shell::MenuItem;

const MenuItem* findEntry(const std::vector<MenuItem>& menu, const std::string& wanted) {
    std::int32_t id = 0;
    const auto [end, error] = std::from_chars(wanted.data(), wanted.data() + wanted.size(), id);
    if (error == std::errc() && end == wanted.data() + wanted.size()) {
        const auto found =
            std::ranges::find_if(menu, [&](const auto& item) { return !item.separator && item.id == id; });
        if (found != menu.end()) {
            return &*found;
        }
    }
    const auto text = wire::toWide(wanted);
    const auto found = std::ranges::find_if(menu, [&](const auto& item) {
        return !item.separator && (sameWord(item.text, text) || sameWord(item.text, text + u"..."));
    });
    return found != menu.end() ? &*found : nullptr;
}

std::vector<wire::WideString> textsOf(const std::vector<MenuItem>& menu) {
    std::vector<wire::WideString> texts;
    for (const auto& item : menu) {
        if (!item.separator) {
            texts.push_back(item.text);
        }
    }
    return texts;
}

} // namespace

const MenuItem& entryCalled(const std::vector<MenuItem>& menu, const std::string& wanted) {
    if (const MenuItem* const entry = findEntry(menu, wanted)) {
        if (entry->disabled) {
            throw Failure(ExitStatus::refused, "The entry \"" + shown(entry->text) + "\" is disabled");
        }
        return *entry;
    }
    throw Failure(ExitStatus::refused, "The menu has no entry \"" + shown(wire::toWide(wanted)) + '"' +
                                           (menu.empty() ? "; it is empty" : "; there is " + listed(textsOf(menu))));
}

} // namespace ctl
