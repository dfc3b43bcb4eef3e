#pragma once

#include "wire/Text.h"

#include <cstddef>
#include <vector>

namespace forms {
class Form;
class ListView;
} // namespace forms

namespace ctl {

// An entry of the menu on the rows of a list.
struct RowMenuEntry {
    forms::ListView* list = nullptr;
    std::size_t entry = 0;
};

// As a person calls it: "List: Entry", with the groups and pages that the list stands on in front.
wire::WideString fullName(const RowMenuEntry& entry);

// Those of all lists, in the order of the Tab key.
std::vector<RowMenuEntry> rowEntriesOf(forms::Form& form);

// What "List: Entry" may mean; the groups and pages that the list stands on may be left out.
std::vector<RowMenuEntry> findRowEntries(forms::Form& form, const wire::WideString& name);

} // namespace ctl
