#pragma once

#include "console/ControlVisitor.h"

#include <map>
#include <memory>

class QButtonGroup;
class QWidget;

namespace console {
class Control;
class RadioGroup;
} // namespace console

namespace desktop {

class ControlWidget;

// Makes the widget for each kind of control.
class WidgetMaker final : private console::ControlVisitor {
public:
    // The owner is the dialog's surface.
    explicit WidgetMaker(QWidget& owner);
    ~WidgetMaker() override;

    std::unique_ptr<ControlWidget> make(console::Control& control);

private:
    void visit(console::Button& control) override;
    void visit(console::CheckBox& control) override;
    void visit(console::DateTimePicker& control) override;
    void visit(console::DropList& control) override;
    void visit(console::EditBox& control) override;
    void visit(console::Group& control) override;
    void visit(console::Label& control) override;
    void visit(console::ListView& control) override;
    void visit(console::MultiLineEdit& control) override;
    void visit(console::PasswordBox& control) override;
    void visit(console::RadioButton& control) override;
    void visit(console::Tabs& control) override;
    void visit(console::TreeView& control) override;

    QWidget& owner_;
    std::map<const console::RadioGroup*, QButtonGroup*> groups_;
    std::unique_ptr<ControlWidget> made_;
};

} // namespace desktop
