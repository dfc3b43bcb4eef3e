#pragma once

#include "forms/Button.h"
#include "forms/Container.h"
#include "forms/FormObserver.h"
#include "platform/Platform.h"

#include <functional>
#include <memory>

namespace forms {

// The ids with which the two standard buttons end a form.
constexpr int idOk = 1;
constexpr int idCancel = 2;

// The texts of the two standard buttons; one without a text is not shown.
struct FormOptions {
    std::u16string_view okLabel = u"OK"; // the default button
    std::u16string_view cancelLabel = u"Cancel";
};

// A dialog without a screen: controls as members, handlers as functions. A dialog class derives from it; a host shows
// it with UserInterface::runModal and never needs to know the class. Handlers run inside a guard: what they throw is
// reported and dropped, and the form stays as it is. A form that failed to open cannot be confirmed, whatever its
// handlers enable: it would write values that it could not read.
class Form : public Container {
public:
    [[nodiscard]] const wire::WideString& title() const { return title_; }
    Form& form() override { return *this; }
    [[nodiscard]] bool shown() const override { return true; }

    // The two standard buttons, drawn at the foot of the form and not among controls().
    Button& okButton() { return *ok_; }
    Button& cancelButton() { return *cancel_; }

    // For hosts: one at a time, null to detach.
    void setObserver(FormObserver* observer) { observer_ = observer; }
    // For hosts: fills the form before it is shown. Called once.
    void open();
    // For hosts: Escape and the closing cross do the same as the Cancel button.
    void userCancelled();
    // For hosts: the button that Enter presses while this control has the focus: the first default one that can be
    // pressed, the form's own ones before the standard one. An own one that is beside a box is meant for that box
    // alone; null stands for no control in particular. Null if none can be pressed.
    [[nodiscard]] Button* defaultButton(const Control* focused = nullptr);
    // For hosts: Enter, where the focused control does not take it.
    void userPressedDefault(const Control* focused = nullptr);

    // For hosts: the form has not ended after all, and keeps what was entered: what it wrote was not accepted.
    void resume();

    [[nodiscard]] bool ended() const { return ended_; }
    [[nodiscard]] int result() const { return result_; }
    // The control that has, or should get, the focus; null for the first reachable one.
    [[nodiscard]] Control* focus() const { return focus_; }

    // For the form and its helpers. The window of this form is the owner of both.
    platform::Answer messageBox(const wire::WideString& text, const wire::WideString& caption, std::uint32_t style);
    int runModal(Form& nested);
    [[nodiscard]] platform::Platform& platform() const { return platform_; }

protected:
    Form(platform::Platform& platform, std::u16string_view title, FormOptions options = {});

    virtual void onInitDialog() {}
    // Called only when a message can carry every text of the form.
    virtual void onOk() { EndDialog(idOk); }
    virtual void onCancel() { EndDialog(idCancel); }

    // Ends the form with this result. A second call changes nothing.
    void EndDialog(int result);
    void setTitle(wire::WideString title);

private:
    friend class Control;
    void controlChanged(Control& control, Aspect aspect);
    bool guarded(const std::function<void()>& handler);
    void confirm();

    platform::Platform& platform_;
    wire::WideString title_;
    std::unique_ptr<Container> footer_; // the container of the standard buttons
    std::unique_ptr<Button> ok_;
    std::unique_ptr<Button> cancel_;
    FormObserver* observer_ = nullptr;
    Control* focus_ = nullptr;
    int result_ = idCancel;
    bool opened_ = false;
    bool ended_ = false;
};

} // namespace forms
