#include "forms/Neighbours.h"

#include "forms/ControlShape.h"
#include "forms/DropList.h"
#include "forms/Group.h"
#include "forms/MultiLineEdit.h"
#include "forms/Tabs.h"
#include "forms/TextControl.h"

#include <algorithm>

namespace forms {
namespace {

template <class Kind>
bool isA(const Control* control) {
    return dynamic_cast<const Kind*>(control) != nullptr;
}

// A group is only placed beside a group, and a tab control beside nothing.
bool fitsBeside(const Control* control, const Control* partner) {
    return isA<Group>(control) ? isA<Group>(partner) : !isA<Tabs>(control);
}

// Not typed into: the buttons behind it fill it, or act on its selection.
bool isFilledByButtons(const Control* control) {
    const auto* const text = dynamic_cast<const TextControl*>(control);
    return isA<DropList>(control) || (text != nullptr && text->options().readOnly && !isA<MultiLineEdit>(control));
}

} // namespace

Neighbours::Neighbours(std::span<Control* const> controls) {
    pairAsTheFormSays(controls);
    pairButtonsWithBoxes(controls);
}

std::span<Control* const> Neighbours::of(const Control& control) const {
    const auto found = others_.find(&control);
    return found != others_.end() ? std::span<Control* const>(found->second) : std::span<Control* const>();
}

void Neighbours::pairAsTheFormSays(std::span<Control* const> controls) {
    for (Control* control : controls) {
        const Control* const partner = control->beside();
        if (partner != nullptr && fitsBeside(control, partner) &&
            std::ranges::find(controls, partner) != controls.end()) {
            pair(*control, *partner);
        }
    }
}

void Neighbours::pairButtonsWithBoxes(std::span<Control* const> controls) {
    const Control* box = nullptr;
    for (Control* control : controls) {
        if (shapeOf(*control).place != Place::button) {
            box = isFilledByButtons(control) ? control : nullptr;
        } else if (box != nullptr && !goesWithAnother(*control)) {
            pair(*control, *box);
        }
    }
}

void Neighbours::pair(Control& control, const Control& partner) {
    const Control* last = &partner;
    for (auto next = partners_.find(last); next != partners_.end(); next = partners_.find(last)) {
        last = next->second;
    }
    if (last != &control) {
        partners_.emplace(&control, &partner);
        others_[&partner].push_back(&control);
    }
}

} // namespace forms
