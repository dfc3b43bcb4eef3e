#pragma once

#include "hosts/ctl/Options.h"

#include <ostream>

namespace forms {
class Form;
}

namespace ctl {

// Prints the controls of an open form that are offered to the user, in Tab order, with those of all its pages. Each has
// its kind, the name by which steps refer to it, its value, what can be chosen, and whether it can be changed, or
// pressed. JSON is {"title", "controls": [{"kind", "label", "value", "choices", "changeable"}]}; lists have "columns"
// and "rows" besides. The texts of password boxes are left out. Brings pages to the front.
void writeForm(std::ostream& out, forms::Form& form, Format format);

} // namespace ctl
