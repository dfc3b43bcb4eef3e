#pragma once

#include "wire/Text.h"

#include <string_view>
#include <vector>

namespace forms {

class Control;
class Form;

// All controls of a form in the order of the Tab key: groups and tab controls each before what stands on them, all
// pages, and the two standard buttons last.
std::vector<Control*> controlsOf(Form& form);

// A label as a person reads it: without access keys ("&Name" is "Name", "&&" is "&") and blanks at the ends.
wire::WideString readableLabel(std::u16string_view label);

// A control's label as a person reads it; that of what it stands beside where it has none of its own.
wire::WideString ownName(const Control& control);

// How a person calls a control: its label. One that stands beside another has that one's label when it has none of its
// own, else "Other: Label"; a control in a group is "Group: Label", and one on a page "Page: Label" or
// "Page: Group: Label".
wire::WideString fullName(const Control& control);

// The controls that a person may mean by a name: without regard to case, access keys and blanks at the ends. The name
// of the neighbour, group or page may be left out; where that leaves several, those that need the fewest names in front
// are meant. More than one: the name does not tell them apart, or one of them stands beside the other.
std::vector<Control*> findControls(Form& form, std::u16string_view name);

// The only control of a kind that a person may mean by a name; null when there is none or more than one.
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

// Whether the control is there for a person, be it on a page behind: it and all that it stands on are visible.
bool isOffered(const Control& control);

// Brings the pages on which the control stands to the front, as a person does before using it. False when a page can't
// be shown now.
bool reveal(Control& control);

} // namespace forms
