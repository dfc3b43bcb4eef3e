#include "tests/support/FormChecks.h"

#include "forms/Button.h"
#include "forms/CheckBox.h"
#include "forms/ControlVisitor.h"
#include "forms/DateTimePicker.h"
#include "forms/DropList.h"
#include "forms/EditBox.h"
#include "forms/FormWalk.h"
#include "forms/Group.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "forms/MultiLineEdit.h"
#include "forms/Page.h"
#include "forms/PasswordBox.h"
#include "forms/RadioButton.h"
#include "forms/RadioGroup.h"
#include "forms/Tabs.h"
#include "forms/TreeView.h"
#include "wire/CaseFold.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <typeindex>
#include <utility>

namespace support {
using namespace forms;

namespace {

// Checks one control, and whether it needs a name.
class Check final : public ControlVisitor {
public:
    bool needsName = true;

    void visit(Button& control) override { EXPECT_FALSE(control.visible() && control.label().empty()); }
    void visit(CheckBox& /*control*/) override {}
    void visit(DateTimePicker& control) override { EXPECT_TRUE(control.options().date || control.options().time); }
    void visit(DropList& /*control*/) override {}
    void visit(EditBox& /*control*/) override {}
    void visit(Group& /*control*/) override {}
    void visit(Label& control) override { needsName = !control.label().empty(); }
    void visit(ListView& control) override {
        for (const ListRow& row : control.rows()) {
            EXPECT_LE(row.cells.size(), control.columns().size());
        }
    }
    void visit(MultiLineEdit& /*control*/) override {}
    void visit(PasswordBox& /*control*/) override {}
    void visit(RadioButton& control) override {
        EXPECT_GT(control.group().buttons().size(), 1U) << "a choice without another";
    }
    void visit(Tabs& control) override {
        needsName = false;
        EXPECT_FALSE(control.pages().empty());
        for (const Page* page : control.pages()) {
            EXPECT_FALSE(readableLabel(page->title()).empty());
        }
    }
    void visit(TreeView& /*control*/) override {}
};

} // namespace

void expectSound(Form& form) {
    SCOPED_TRACE("form \"" + wire::toUtf8(form.title()) + "\"");
    EXPECT_FALSE(readableLabel(form.title()).empty());
    std::set<wire::WideString> names;
    std::set<std::pair<const Control*, std::type_index>> borrowers;
    for (Control* control : controlsOf(form)) {
        const wire::WideString name = readableLabel(control->label());
        SCOPED_TRACE("control \"" + wire::toUtf8(name) + "\"");
        EXPECT_EQ(&control->form(), &form);
        Check check;
        control->accept(check);
        const bool leftOut = control->label().empty() && !control->visible();
        if (const Control* const other = control->beside(); other != nullptr) {
            EXPECT_EQ(&other->form(), &form);
            if (check.needsName && name.empty()) {
                EXPECT_TRUE(borrowers.emplace(other, typeid(*control)).second)
                    << "two of a kind with one borrowed name";
                continue;
            }
        }
        if (!check.needsName || leftOut) {
            continue;
        }
        if (name.empty()) {
            ADD_FAILURE() << "a control without a label";
            continue;
        }
        EXPECT_TRUE(names.insert(wire::foldCase(fullName(*control))).second) << "two with this label";
        const auto found = findControls(form, fullName(*control));
        EXPECT_NE(std::ranges::find(found, control), found.end()) << "not found by its name";
    }
}

} // namespace support
