#include "hosts/ctl/RowEntry.h"

#include "console/FormWalk.h"
#include "console/ListView.h"
#include "hosts/ctl/Words.h"

namespace ctl {
namespace {

wire::WideString entryName(const RowEntry& entry) {
    return u": " + console::readableLabel(entry.list->rowMenu()[entry.entry]);
}

} // namespace

wire::WideString fullName(const RowEntry& entry) {
    return console::fullName(*entry.list) + entryName(entry);
}

std::vector<RowEntry> rowEntriesOf(console::Form& form) {
    std::vector<RowEntry> entries;
    for (console::Control* const control : console::controlsOf(form)) {
        if (auto* const list = dynamic_cast<console::ListView*>(control)) {
            for (std::size_t entry = 0; entry < list->rowMenu().size(); ++entry) {
                entries.push_back({list, entry});
            }
        }
    }
    return entries;
}

std::vector<RowEntry> findRowEntries(console::Form& form, const wire::WideString& name) {
    auto entries = rowEntriesOf(form);
    std::erase_if(entries, [&](const RowEntry& one) {
        const auto entry = entryName(one);
        if (name.size() <= entry.size()) {
            return true;
        }
        const auto place = name.size() - entry.size();
        return !sameWord(name.substr(place), entry) ||
               console::findControl<console::ListView>(form, name.substr(0, place)) != one.list;
    });
    return entries;
}

} // namespace ctl
