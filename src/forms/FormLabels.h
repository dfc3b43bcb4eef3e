#pragma once

#include "forms/AccessKeys.h"

#include <map>
#include <string_view>

namespace forms {

class Control;
class Form;
class Page;

// The labels of a form as hosts show them. Access keys are assigned once, over everything that the form can show:
// controls that are hidden, disabled or on a page behind have theirs too, so that no key changes while the dialog is
// open. The standard buttons come first, so that theirs are the same in every dialog.
class FormLabels {
public:
    explicit FormLabels(Form& form);

    [[nodiscard]] KeyedLabel of(const Control& control) const;
    [[nodiscard]] KeyedLabel of(const Page& page) const;
    // Call when the control's label, or the title of one of its pages, has changed.
    void changed(const Control& control);

private:
    void add(Control& control, AccessKeys::Claim claim);

    AccessKeys keys_;
    std::map<const Control*, std::size_t> controls_; // those that can have a key
    std::map<const Page*, std::size_t> pages_;
};

} // namespace forms
