#pragma once

#include "wire/Text.h"

#include <string_view>
#include <vector>

namespace forms {

class Control;
class Form;

// All controls of a form in Tab order: each group and tab control before the controls on it, all pages, and the two
// standard buttons last.
std::vector<Control*> controlsOf(Form& form);

// A label as displayed: without access keys ("&Name" is "Name", "&&" is "&") and without blanks at the ends.
wire::WideString readableLabel(std::u16string_view label);

// A control's label as displayed; if it has none, that of the control that it is beside.
wire::WideString ownName(const Control& control);

// The name by which the user refers to a control: its label. One beside another control goes by that one's label when
// it has none of its own, otherwise by "Other: Label"; a control in a group is "Group: Label", and one on a page "Page:
// Label" or "Page: Group: Label".
wire::WideString fullName(const Control& control);

// The controls that a name may refer to, ignoring case, access keys and blanks at the ends. The name of the neighbour,
// group or page may be left out; if several controls match, those that need the fewest names in front win. More than
// one: the name is ambiguous, or one of them is beside the other.
std::vector<Control*> findControls(Form& form, std::u16string_view name);

// The only control of a kind that a name may refer to; null when there is none or more than one.
template <class Kind>
Kind* findControl(Form& form, std::u16string_view name) {
    Kind* found = nullptr;
    for (Control* control : findControls(form, name)) {
        if (auto* const candidate = dynamic_cast<Kind*>(control)) {
            if (found != nullptr) {
                return nullptr;
            }
            found = candidate;
        }
    }
    return found;
}

// Whether the control is available to the user, even on a page behind: it and all that it is on are visible.
bool isOffered(const Control& control);

// Brings the pages that the control is on to the front, as the user does before using it. False when a page can't be
// shown now.
bool reveal(Control& control);

} // namespace forms
