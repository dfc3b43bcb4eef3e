#pragma once

namespace forms {

class Button;
class CheckBox;
class DateTimePicker;
class DropList;
class EditBox;
class Group;
class Label;
class ListView;
class MultiLineEdit;
class PasswordBox;
class RadioButton;
class Tabs;
class TreeView;

// Distinguishes the kinds of controls; a host that leaves one out does not compile.
class ControlVisitor {
public:
    virtual ~ControlVisitor() = default;

    virtual void visit(Button& control) = 0;
    virtual void visit(CheckBox& control) = 0;
    virtual void visit(DateTimePicker& control) = 0;
    virtual void visit(DropList& control) = 0;
    virtual void visit(EditBox& control) = 0;
    virtual void visit(Group& control) = 0;
    virtual void visit(Label& control) = 0;
    virtual void visit(ListView& control) = 0;
    virtual void visit(MultiLineEdit& control) = 0;
    virtual void visit(PasswordBox& control) = 0;
    virtual void visit(RadioButton& control) = 0;
    virtual void visit(Tabs& control) = 0;
    virtual void visit(TreeView& control) = 0;
};

} // namespace forms
