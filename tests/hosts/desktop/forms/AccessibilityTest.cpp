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
#include "forms/PasswordBox.h"
#include "forms/RadioButton.h"
#include "forms/Tabs.h"
#include "forms/TextControl.h"
#include "forms/TreeView.h"
#include "hosts/desktop/forms/FormDialog.h"
#include "hosts/desktop/look/ColorScheme.h"
#include "tests/hosts/desktop/AccessibleTree.h"
#include "tests/hosts/desktop/forms/DialogFixture.h"
#include "tests/hosts/desktop/forms/ProductForms.h"

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QStyle>
#include <QTest>

#include <map>
#include <vector>

namespace desktop {
namespace {

using desktoptest::described;
using desktoptest::everythingOn;

// What a screen reader says about a control.
class Spoken final : public forms::ControlVisitor {
public:
    explicit Spoken(QAccessibleInterface& spoken) : spoken_(spoken) {}

    void visit(forms::Button& /*control*/) override { expectRole({QAccessible::PushButton}); }
    void visit(forms::CheckBox& control) override {
        expectRole({QAccessible::CheckBox});
        EXPECT_EQ(spoken_.state().checked, control.checked() ? 1U : 0U);
    }
    void visit(forms::DateTimePicker& /*control*/) override {
        expectRole({QAccessible::SpinBox});
        EXPECT_FALSE(spoken_.text(QAccessible::Value).isEmpty());
    }
    void visit(forms::DropList& control) override {
        expectRole({QAccessible::ComboBox});
        EXPECT_EQ(value(), control.selectedText());
    }
    void visit(forms::EditBox& control) override {
        expectRole({QAccessible::EditableText});
        EXPECT_EQ(value(), control.text());
        EXPECT_EQ(spoken_.state().readOnly, control.options().readOnly ? 1U : 0U);
    }
    void visit(forms::Group& /*control*/) override { expectRole({QAccessible::Grouping}); }
    void visit(forms::Label& control) override {
        expectRole({QAccessible::StaticText});
        EXPECT_NE(spoken_.text(QAccessible::Name).toStdU16String().find(control.text()), std::u16string::npos);
    }
    void visit(forms::ListView& control) override {
        expectRole({QAccessible::Tree, QAccessible::Table, QAccessible::List});
        ASSERT_NE(spoken_.tableInterface(), nullptr);
        EXPECT_EQ(spoken_.tableInterface()->rowCount(), static_cast<int>(control.rows().size()));
    }
    void visit(forms::MultiLineEdit& control) override {
        expectRole({QAccessible::EditableText});
        EXPECT_EQ(spoken_.state().readOnly, control.options().readOnly ? 1U : 0U);
    }
    void visit(forms::PasswordBox& /*control*/) override {
        expectRole({QAccessible::EditableText});
        EXPECT_TRUE(spoken_.state().passwordEdit);
    }
    void visit(forms::RadioButton& control) override {
        expectRole({QAccessible::RadioButton});
        EXPECT_EQ(spoken_.state().checked, control.chosen() ? 1U : 0U);
    }
    void visit(forms::Tabs& /*control*/) override {}
    void visit(forms::TreeView& /*control*/) override { expectRole({QAccessible::Tree}); }

private:
    void expectRole(const std::vector<QAccessible::Role>& roles) {
        EXPECT_NE(std::ranges::find(roles, spoken_.role()), roles.end()) << described(spoken_);
    }
    [[nodiscard]] std::u16string value() const { return spoken_.text(QAccessible::Value).toStdU16String(); }

    QAccessibleInterface& spoken_;
};

void expectSpoken(FormDialog& dialog) {
    for (forms::Control* control : forms::controlsOf(dialog.form())) {
        SCOPED_TRACE(wire::toUtf8(forms::fullName(*control)));
        QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(dialog.widgetOf(*control));
        ASSERT_NE(spoken, nullptr);
        Spoken check(*spoken);
        control->accept(check);
        if (control->container().shown()) {
            EXPECT_EQ(spoken->state().disabled, control->enabled() && control->container().usable() ? 0U : 1U);
        }
    }
}

void expectNamed(FormDialog& dialog) {
    QAccessibleInterface* const top = QAccessible::queryAccessibleInterface(&dialog);
    ASSERT_NE(top, nullptr);
    EXPECT_EQ(top->role(), QAccessible::Dialog);
    EXPECT_FALSE(top->text(QAccessible::Name).isEmpty());
    for (const QAccessibleInterface* each : everythingOn(*top)) {
        const auto state = each->state();
        const bool mayBeEmpty = each->role() == QAccessible::ListItem; // a drop list may offer an empty row
        if (state.focusable && !state.invisible && !mayBeEmpty) {
            EXPECT_FALSE(each->text(QAccessible::Name).isEmpty()) << described(*each);
            EXPECT_NE(each->role(), QAccessible::NoRole) << described(*each);
        }
    }
}

class AccessibleForms : public testing::TestWithParam<ProductForm> {
protected:
    support::TestPlatform platform;
};

TEST_P(AccessibleForms, sayNameRoleAndValueOfEverything) {
    const auto form = GetParam().make(platform);
    FormDialog dialog(*form);
    dialog.show();
    QCoreApplication::processEvents();

    expectNamed(dialog);
    expectSpoken(dialog);
}

INSTANTIATE_TEST_SUITE_P(OfTheProduct, AccessibleForms, testing::ValuesIn(productForms()),
                         [](const auto& tested) { return tested.param.name; });

class Accessibility : public DialogFixture {};

TEST_F(Accessibility, everyKindOfControlSaysNameRoleAndValue) {
    form.opening = [this] {
        form.name.setText(u"Text");
        form.brand.addItem(u"Brand");
        form.brand.select(0);
        form.rules.setColumns({{u"Rule", 100}});
        form.rules.setRows({{{u"First"}, "1"}});
        form.invisible.setChecked(true);
    };
    FormDialog& dialog = show();

    expectNamed(dialog);
    expectSpoken(dialog);
}

// The look is that of the test's program again afterwards.
class InLook {
public:
    explicit InLook(ColorScheme look) { applyColorScheme(look); }
    ~InLook() {
        QApplication::setStyle(style_);
        QApplication::setPalette(palette_);
    }
    InLook(const InLook&) = delete;
    InLook& operator=(const InLook&) = delete;

private:
    QString style_ = QApplication::style()->name();
    QPalette palette_ = QApplication::palette();
};

class VisibleFocus : public DialogFixture, public testing::WithParamInterface<ColorScheme> {
protected:
    // What a person sees around the control while another one, or itself, has the keyboard.
    static QImage lookOf(FormDialog& dialog, QWidget& widget, QWidget& focused) {
        focused.setFocus(Qt::TabFocusReason);
        settle();
        const QRect around = QRect(widget.mapTo(&dialog, QPoint()), widget.size()).adjusted(-3, -3, 3, 3);
        return dialog.grab(around).toImage();
    }
};

TEST_P(VisibleFocus, isDrawnOnEveryKindOfControl) {
    const InLook look(GetParam());
    form.opening = [this] {
        form.brand.addItem(u"Brand");
        form.byBrand.choose();
        form.rules.setColumns({{u"Rule", 100}});
        form.rules.setRows({{{u"First"}, "1"}, {{u"Second"}, "2"}});
    };
    FormDialog& dialog = show();
    auto& elsewhere = widget<QWidget>(form.password);
    for (const forms::Control* control :
         std::vector<const forms::Control*>{&form.name, &form.comment, &form.byBrand, &form.brand, &form.invisible,
                                            &form.rules, &form.apply, &form.okButton(), &form.cancelButton()}) {
        auto& box = widget<QWidget>(*control);
        const QImage without = lookOf(dialog, box, elsewhere);
        EXPECT_TRUE(lookOf(dialog, box, box) != without) << wire::toUtf8(forms::fullName(*control));
    }
}

INSTANTIATE_TEST_SUITE_P(OfBothLooks, VisibleFocus, testing::Values(ColorScheme::light, ColorScheme::dark),
                         [](const auto& tested) { return tested.param == ColorScheme::light ? "light" : "dark"; });

} // namespace
} // namespace desktop
