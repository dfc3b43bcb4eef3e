#include "hosts/desktop/forms/FormDialog.h"
#include "tests/hosts/desktop/forms/DialogFixture.h"

#include "forms/FormWalk.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <set>

namespace desktop {
namespace {

class FormKeyboard : public DialogFixture {};

// The mnemonic of each text of the dialog, in upper case.
std::vector<QChar> accessKeys(const QWidget& dialog) {
    std::vector<QChar> keys;
    const auto add = [&](const QString& text) {
        for (qsizetype i = 0; i + 1 < text.size(); ++i) {
            if (text[i] == QLatin1Char('&') && text[++i] != QLatin1Char('&')) {
                keys.push_back(text[i].toUpper());
            }
        }
    };
    for (const auto* label : dialog.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            add(label->text());
        }
    }
    for (const auto* button : dialog.findChildren<QAbstractButton*>()) {
        add(button->text());
    }
    for (const auto* tabs : dialog.findChildren<QTabWidget*>()) {
        for (int i = 0; i < tabs->count(); ++i) {
            add(tabs->tabText(i));
        }
    }
    return keys;
}

TEST_F(FormKeyboard, everyAccessKeyOfADialogStandsOnce) {
    const auto keys = accessKeys(show());
    EXPECT_EQ(keys.size(), 15U);
    EXPECT_EQ(std::set<QChar>(keys.begin(), keys.end()).size(), keys.size());
}

TEST_F(FormKeyboard, anAccessKeyTakesTheKeyboardToTheBoxBehindTheLabel) {
    auto& dialog = show();
    widget<QPushButton>(form.okButton()).setFocus();
    const auto labels = dialog.findChildren<QLabel*>();
    const auto found = std::ranges::find_if(
        labels, [&](const QLabel* label) { return label->buddy() == &widget<QLineEdit>(form.password); });
    ASSERT_NE(found, labels.end());
    EXPECT_EQ((*found)->text(), QStringLiteral("&Password"));
    QTest::keyClick(&dialog, Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(widget<QLineEdit>(form.password).hasFocus());
}

TEST_F(FormKeyboard, anAccessKeyThatNoControlHasTypesNothing) {
    auto& dialog = show();
    for (const Qt::Key key : {Qt::Key_J, Qt::Key_X}) {
        ASSERT_EQ(std::ranges::count(accessKeys(dialog), QChar(key)), 0);
        auto& box = widget<QLineEdit>(form.name);
        box.setFocus();
        box.selectAll();
        const QString before = box.text();
        QTest::keyClick(&box, key, Qt::AltModifier);
        EXPECT_EQ(box.text(), before);
    }
}

TEST_F(FormKeyboard, aLabelThatChangesMovesNoAccessKey) {
    auto& dialog = show();
    const auto before = accessKeys(dialog);
    form.name.setLabel(u"OK or Cancel");
    EXPECT_EQ(accessKeys(dialog), before);
    EXPECT_EQ(widget<QLineEdit>(form.name).accessibleName(), QStringLiteral("OK or Cancel"));
}

TEST_F(FormKeyboard, theTabKeyGoesThroughTheControlsInTheirOrder) {
    form.opening = [this] { form.byBrand.choose(); };
    show();
    const std::vector<const forms::Control*> order{&form.name,  &form.password, &form.comment,  &form.byBrand,
                                                   &form.brand, &form.place,    &form.invisible};
    for (const auto* control : order) {
        EXPECT_EQ(QApplication::focusWidget(), &widget<QWidget>(*control)) << wire::toUtf8(control->label());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_NE(dynamic_cast<QTabBar*>(QApplication::focusWidget()), nullptr);
    for (const forms::Control* control : std::vector<const forms::Control*>{&form.rules, &form.apply, &form.okButton(),
                                                                            &form.cancelButton(), &form.name}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), &widget<QWidget>(*control))
            << wire::toUtf8(control->label()) << ", not a " << QApplication::focusWidget()->metaObject()->className();
    }
}

TEST_F(FormKeyboard, enterPressesTheDefaultButton) {
    show();
    QTest::keyClick(&widget<QLineEdit>(form.name), Qt::Key_Return);
    EXPECT_TRUE(form.ended());
    EXPECT_EQ(form.result(), forms::idOk);
}

TEST_F(FormKeyboard, enterOnAButtonPressesThatButton) {
    show();
    int applied = 0;
    form.apply.onPress = [&] { ++applied; };
    widget<QPushButton>(form.apply).setFocus();
    QTest::keyClick(&widget<QPushButton>(form.apply), Qt::Key_Return);
    EXPECT_EQ(applied, 1);
    EXPECT_FALSE(form.ended());
}

TEST_F(FormKeyboard, enterInABoxOfSeveralLinesMakesALine) {
    show();
    widget<QPlainTextEdit>(form.comment).setFocus();
    QTest::keyClick(&widget<QPlainTextEdit>(form.comment), Qt::Key_Return);
    EXPECT_FALSE(form.ended());
    EXPECT_EQ(form.comment.text(), u"\r\n");
}

TEST_F(FormKeyboard, enterDoesNothingWhileTheDefaultButtonIsDisabled) {
    form.opening = [this] { form.okButton().setEnabled(false); };
    show();
    QTest::keyClick(&widget<QLineEdit>(form.name), Qt::Key_Return);
    EXPECT_FALSE(form.ended());
}

TEST_F(FormKeyboard, theDefaultButtonIsDrawnAsSuch) {
    show();
    widget<QLineEdit>(form.name).setFocus();
    EXPECT_TRUE(widget<QPushButton>(form.okButton()).isDefault());
    EXPECT_FALSE(widget<QPushButton>(form.cancelButton()).isDefault());
    form.okButton().setEnabled(false);
    EXPECT_FALSE(widget<QPushButton>(form.okButton()).isDefault());
}

TEST_F(FormKeyboard, escapeCancels) {
    show();
    QTest::keyClick(&widget<QLineEdit>(form.name), Qt::Key_Escape);
    EXPECT_TRUE(form.ended());
    EXPECT_EQ(form.result(), forms::idCancel);
}

TEST_F(FormKeyboard, aFormThatWillNotBeCancelledStays) {
    int asked = 0;
    form.cancelling = [&] { ++asked; };
    auto& dialog = show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    dialog.close();
    EXPECT_EQ(asked, 2);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(FormKeyboard, theKeyboardBeginsWhereTheFormWantsIt) {
    form.opening = [this] { form.password.setFocus(); };
    show();
    EXPECT_TRUE(widget<QLineEdit>(form.password).hasFocus());
}

TEST_F(FormKeyboard, theKeyboardBeginsOnTheFirstControlThatCanBeReached) {
    form.opening = [this] {
        form.name.setVisible(false);
        form.password.setEnabled(false);
    };
    show();
    EXPECT_TRUE(widget<QPlainTextEdit>(form.comment).hasFocus());
}

TEST_F(FormKeyboard, theFormMovesTheKeyboard) {
    show();
    form.place.setFocus();
    EXPECT_TRUE(widget<QLineEdit>(form.place).hasFocus());
    EXPECT_EQ(widget<QLineEdit>(form.place).selectionStart(), -1) << "nothing to select";
    form.name.setText(u"text");
    form.name.setFocus();
    EXPECT_EQ(widget<QLineEdit>(form.name).selectedText(), QStringLiteral("text"));
}

TEST_F(FormKeyboard, everyWidgetThatTakesTheKeyboardHasAName) {
    auto& dialog = show();
    for (forms::Control* control : forms::controlsOf(form)) {
        const QWidget* const shown = dialog.widgetOf(*control);
        ASSERT_NE(shown, nullptr);
        const bool takesKeyboard =
            shown->focusPolicy() != Qt::NoFocus && dynamic_cast<const QTabWidget*>(shown) == nullptr;
        if (takesKeyboard) {
            EXPECT_FALSE(shown->accessibleName().isEmpty()) << wire::toUtf8(forms::fullName(*control));
        }
    }
}

TEST_F(FormKeyboard, aDefaultButtonBesideABoxIsPressedFromThereAlone) {
    forms::Button find(form, u"Find", true);
    find.setBeside(form.name);
    int found = 0;
    find.onPress = [&] { ++found; };
    show();
    EXPECT_TRUE(widget<QPushButton>(find).isDefault());
    QTest::keyClick(&widget<QLineEdit>(form.name), Qt::Key_Return);
    EXPECT_EQ(found, 1);

    widget<QLineEdit>(form.password).setFocus();
    EXPECT_FALSE(widget<QPushButton>(find).isDefault());
    EXPECT_TRUE(widget<QPushButton>(form.okButton()).isDefault());
    QTest::keyClick(&widget<QLineEdit>(form.password), Qt::Key_Return);
    EXPECT_EQ(found, 1);
    EXPECT_EQ(form.result(), forms::idOk);
}

} // namespace
} // namespace desktop
