#pragma once

#include "wire/Text.h"

#include <cstddef>
#include <vector>

namespace forms {
class Form;
class ListView;
} // namespace forms

namespace ctl {

// An entry of the context menu of a list's rows.
struct RowMenuEntry {
    forms::ListView* list = nullptr;
    std::size_t entry = 0;
};

// Its name: "List: Entry", preceded by the groups and pages that the list is on.
wire::WideString fullName(const RowMenuEntry& entry);

// The entries of all lists, in Tab order.
std::vector<RowMenuEntry> rowEntriesOf(forms::Form& form);

// The entries that "List: Entry" may refer to; the groups and pages that the list is on may be left out.
std::vector<RowMenuEntry> findRowEntries(forms::Form& form, const wire::WideString& name);

} // namespace ctl
