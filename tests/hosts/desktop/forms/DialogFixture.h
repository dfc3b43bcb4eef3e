#pragma once

#include "hosts/desktop/forms/FormDialog.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <QRect>

#include <memory>

namespace desktop {

// The place of a control's widget on its dialog.
QRect placeOn(const FormDialog& dialog, const forms::Control& control);

// A form with every kind of control, as a dialog in front of a person.
class DialogFixture : public testing::Test {
protected:
    // Shows the form and waits until it has the focus.
    FormDialog& show();
    // Processes all pending events.
    static void settle();

    template <class Widget>
    Widget& widget(const forms::Control& control) {
        return dynamic_cast<Widget&>(*dialog_->widgetOf(control));
    }

    support::TestPlatform platform;
    forms::SampleForm form{platform};

private:
    std::unique_ptr<FormDialog> dialog_;
};

} // namespace desktop
