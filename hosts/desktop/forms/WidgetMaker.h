#pragma once

#include "forms/ControlVisitor.h"

#include <map>
#include <memory>

class QButtonGroup;
class QWidget;

namespace forms {
class Control;
class RadioGroup;
} // namespace forms

namespace desktop {

class ControlWidget;

// Makes the widget for each kind of control.
class WidgetMaker final : private forms::ControlVisitor {
public:
    // The owner is the dialog's surface.
    explicit WidgetMaker(QWidget& owner);
    ~WidgetMaker() override;

    std::unique_ptr<ControlWidget> make(forms::Control& control);

private:
    void visit(forms::Button& control) override;
    void visit(forms::CheckBox& control) override;
    void visit(forms::DateTimePicker& control) override;
    void visit(forms::DropList& control) override;
    void visit(forms::EditBox& control) override;
    void visit(forms::Group& control) override;
    void visit(forms::Label& control) override;
    void visit(forms::ListView& control) override;
    void visit(forms::MultiLineEdit& control) override;
    void visit(forms::PasswordBox& control) override;
    void visit(forms::RadioButton& control) override;
    void visit(forms::Tabs& control) override;
    void visit(forms::TreeView& control) override;

    QWidget& owner_;
    std::map<const forms::RadioGroup*, QButtonGroup*> groups_;
    std::unique_ptr<ControlWidget> made_;
};

} // namespace desktop
