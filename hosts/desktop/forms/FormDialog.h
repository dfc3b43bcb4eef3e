#pragma once

#include "forms/FormObserver.h"
#include "forms/LayoutPlan.h"

#include <QDialog>

#include <memory>

namespace desktop {

class FormScroll;
class FormWidgets;

// A form of the console as a dialog, drawn from its controls alone. Attaches itself as the form's observer, opens the
// form, and closes once the form has ended. The form outlives it.
class FormDialog final : public QDialog, private forms::FormObserver {
public:
    explicit FormDialog(forms::Form& form, QWidget* owner = nullptr);
    FormDialog(const FormDialog&) = delete;
    FormDialog& operator=(const FormDialog&) = delete;
    ~FormDialog() override;

    [[nodiscard]] forms::Form& form() const { return form_; }

    // The widget of a control: the box, list or button itself, not its label.
    [[nodiscard]] QWidget* widgetOf(const forms::Control& control) const;

    // Escape and the closing cross: the form decides, as it does about its Cancel button.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    // Draws the form in the first arrangement that the screen has room for.
    void arrange();
    // Returns the least size of everything that the form can show, without the foot.
    QSize draw(forms::Arrangement arrangement);
    // Called once a handler that has made controls visible has returned.
    void growToFit();

    void controlChanged(forms::Control& control, forms::Aspect aspect) override;
    void titleChanged(forms::Form& form) override;
    void formEnded(forms::Form& form) override;

    forms::Form& form_;
    FormScroll* scroll_;
    QWidget* foot_ = nullptr; // always in sight
    bool growsSoon_ = false;
    std::unique_ptr<FormWidgets> widgets_;
};

// Shows the form over its owner until the user or its own code ends it, and returns its result. Forms nest: a null
// owner means the front-most dialog. If the program quits in the meantime, the form ends as cancelled.
int runForm(forms::Form& form, QWidget* owner = nullptr);

} // namespace desktop
