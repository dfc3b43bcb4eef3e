#pragma once

#include "wire/Text.h"

#include <cstddef>
#include <vector>

namespace console {
class Form;
class ListView;
} // namespace console

namespace ctl {

// An entry of the menu on the rows of a list.
struct RowEntry {
    console::ListView* list = nullptr;
    std::size_t entry = 0;
};

// As a person calls it: "List: Entry", with the groups and pages that the list stands on in front.
wire::WideString fullName(const RowEntry& entry);

// Those of all lists, in the order of the Tab key.
std::vector<RowEntry> rowEntriesOf(console::Form& form);

// What "List: Entry" may mean; the groups and pages that the list stands on may be left out.
std::vector<RowEntry> findRowEntries(console::Form& form, const wire::WideString& name);

} // namespace ctl
