#include "forms/ControlShape.h"

#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/ControlVisitor.h"
#include "forms/DateTimePicker.h"
#include "forms/DropList.h"
#include "forms/EditBox.h"
#include "forms/Group.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "forms/MultiLineEdit.h"
#include "forms/PasswordBox.h"
#include "forms/RadioButton.h"
#include "forms/Tabs.h"
#include "forms/TreeView.h"

namespace forms {
namespace {

// Determines the shape from the kind of a control.
class ShapeFinder final : public ControlVisitor {
public:
    ControlShape shape;

    void visit(Button& /*control*/) override { shape = {.place = Place::button, .takesKey = true}; }
    void visit(CheckBox& /*control*/) override { shape = {.place = Place::field, .takesKey = true}; }
    void visit(DateTimePicker& control) override { shape = box(control); }
    void visit(DropList& control) override { shape = box(control); }
    void visit(EditBox& control) override { shape = box(control); }
    void visit(Group& /*control*/) override { shape = {.place = Place::block}; }
    void visit(Label& control) override {
        const bool hasCaption = !control.label().empty();
        shape = {.place = hasCaption ? Place::row : Place::block, .hasCaption = hasCaption};
    }
    void visit(ListView& control) override { shape = list(control); }
    void visit(MultiLineEdit& control) override {
        shape = box(control);
        shape.grows = true;
    }
    void visit(PasswordBox& control) override { shape = box(control); }
    void visit(RadioButton& /*control*/) override { shape = {.place = Place::field, .takesKey = true}; }
    void visit(Tabs& /*control*/) override { shape = {.place = Place::block, .grows = true}; }
    void visit(TreeView& control) override { shape = list(control); }

private:
    static ControlShape box(const Control& control) {
        const bool hasCaption = !control.label().empty();
        return {.place = Place::row, .hasCaption = hasCaption, .takesKey = hasCaption};
    }
    static ControlShape list(const Control& control) {
        ControlShape shape = box(control);
        shape.place = Place::block;
        shape.grows = true;
        return shape;
    }
};

} // namespace

ControlShape shapeOf(Control& control) {
    ShapeFinder finder;
    control.accept(finder);
    return finder.shape;
}

} // namespace forms
