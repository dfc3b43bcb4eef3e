#pragma once

#include "forms/Control.h"

namespace forms {

class Form;

// How a host that shows a form learns what the form's own code changes.
class FormObserver {
public:
    virtual ~FormObserver() = default;

    virtual void controlChanged(Control& control, Aspect aspect) = 0;
    virtual void titleChanged(Form& form) = 0;
    // The form has ended and has its result. Called once.
    virtual void formEnded(Form& form) = 0;
};

} // namespace forms
