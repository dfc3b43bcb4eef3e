#include "hosts/ctl/RowMenuEntry.h"

#include "forms/FormWalk.h"
#include "forms/ListView.h"
#include "hosts/ctl/PrintableText.h"

namespace ctl {
namespace {

wire::WideString entryName(const RowMenuEntry& entry) {
    return u": " + forms::readableLabel(entry.list->rowMenu()[entry.entry]);
}

} // namespace

wire::WideString fullName(const RowMenuEntry& entry) {
    return forms::fullName(*entry.list) + entryName(entry);
}

std::vector<RowMenuEntry> rowEntriesOf(forms::Form& form) {
    std::vector<RowMenuEntry> entries;
    for (forms::Control* const control : forms::controlsOf(form)) {
        if (auto* const list = dynamic_cast<forms::ListView*>(control)) {
            for (std::size_t entry = 0; entry < list->rowMenu().size(); ++entry) {
                entries.push_back({list, entry});
            }
        }
    }
    return entries;
}

std::vector<RowMenuEntry> findRowEntries(forms::Form& form, const wire::WideString& name) {
    auto entries = rowEntriesOf(form);
    std::erase_if(entries, [&](const RowMenuEntry& one) {
        const auto entry = entryName(one);
        if (name.size() <= entry.size()) {
            return true;
        }
        const auto place = name.size() - entry.size();
        return !sameWord(name.substr(place), entry) ||
               forms::findControl<forms::ListView>(form, name.substr(0, place)) != one.list;
    });
    return entries;
}

} // namespace ctl
