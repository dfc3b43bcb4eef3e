#include "hosts/desktop/forms/FormDialog.h"
#include "forms/CheckBox.h"
#include "forms/Group.h"
#include "forms/Label.h"
#include "tests/hosts/desktop/forms/DialogFixture.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

namespace desktop {
namespace {

class FormDialogs : public DialogFixture {};

QDialog* frontDialog() {
    return dynamic_cast<QDialog*>(QApplication::activeModalWidget());
}

TEST_F(FormDialogs, theTitleIsTheFormsAndFollowsIt) {
    auto& dialog = show();
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Sample"));
    form.setTitle(u"Edit <b>Message</b>");
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Edit <b>Message</b>"));
}

TEST_F(FormDialogs, aLongTitleIsShownWholeUnlessTheScreenIsNarrower) {
    auto& dialog = show();
    const wire::WideString title = u"Rename the region that holds the printers of the warehouse in Berlin to something";
    form.setTitle(title);
    settle();
    EXPECT_GE(dialog.width(), dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()));

    form.setTitle(wire::WideString(5'000, u'W'));
    settle();
    EXPECT_LE(dialog.width(), dialog.screen()->availableGeometry().width());
}

TEST_F(FormDialogs, aControlIsDisabledAndHiddenWithItsLabel) {
    auto& dialog = show();
    const auto& box = widget<QLineEdit>(form.password);
    const QLabel* caption = nullptr;
    for (const auto* label : dialog.findChildren<QLabel*>()) {
        caption = label->buddy() == &box ? label : caption;
    }
    ASSERT_NE(caption, nullptr);
    form.password.setEnabled(false);
    EXPECT_FALSE(box.isEnabled());
    EXPECT_FALSE(caption->isEnabled());
    form.password.setVisible(false);
    EXPECT_FALSE(box.isVisible());
    EXPECT_FALSE(caption->isVisible());
    form.password.setEnabled(true);
    form.password.setVisible(true);
    EXPECT_TRUE(box.isVisible() && box.isEnabled() && caption->isVisible() && caption->isEnabled());
}

TEST_F(FormDialogs, aGroupThatIsDisabledOrHiddenTakesWhatStandsInItAlong) {
    show();
    form.where.setEnabled(false);
    EXPECT_FALSE(widget<QLineEdit>(form.place).isEnabled());
    form.place.setEnabled(false);
    form.place.setEnabled(true);
    EXPECT_FALSE(widget<QLineEdit>(form.place).isEnabled());
    form.where.setEnabled(true);
    EXPECT_TRUE(widget<QLineEdit>(form.place).isEnabled());
    form.where.setVisible(false);
    EXPECT_FALSE(widget<QLineEdit>(form.place).isVisible());
    EXPECT_EQ(widget<QGroupBox>(form.where).title(), QStringLiteral("Where"));
}

TEST_F(FormDialogs, aPageIsShownByThePersonAndByTheForm) {
    show();
    auto& tabs = widget<QTabWidget>(form.tabs);
    int shows = 0;
    form.tabs.onShow = [&] { ++shows; };
    tabs.setCurrentIndex(1);
    EXPECT_EQ(form.tabs.current(), 1U);
    EXPECT_EQ(shows, 1);
    form.tabs.show(0);
    EXPECT_EQ(tabs.currentIndex(), 0);
    EXPECT_EQ(shows, 1);
}

TEST_F(FormDialogs, aPageThatMayNotBeShownNowStaysBehind) {
    show();
    form.tabs.setEnabled(false);
    auto& tabs = widget<QTabWidget>(form.tabs);
    tabs.setCurrentIndex(1);
    EXPECT_EQ(form.tabs.current(), 0U);
    EXPECT_EQ(tabs.currentIndex(), 0);
}

TEST_F(FormDialogs, aPageIsHiddenAndRetitledByTheForm) {
    form.general.setVisible(false);
    show();
    auto& tabs = widget<QTabWidget>(form.tabs);
    EXPECT_FALSE(tabs.isTabVisible(0));
    EXPECT_EQ(tabs.currentIndex(), 1);

    form.more.setTitle(u"Schedule");
    form.general.setVisible(true);
    EXPECT_TRUE(tabs.isTabVisible(0));
    EXPECT_EQ(tabs.tabText(1).remove(QLatin1Char('&')), QStringLiteral("Schedule"));
    EXPECT_EQ(tabs.currentIndex(), 1);

    form.more.setVisible(false);
    EXPECT_EQ(tabs.currentIndex(), 0);
    EXPECT_EQ(form.tabs.current(), 0U);
}

TEST_F(FormDialogs, aTextThatNoMessageCarriesIsRefusedAndNotCut) {
    show();
    form.comment.setLimit(forms::TextOptions::unlimited);
    widget<QPlainTextEdit>(form.comment).setPlainText(QString(40000, QLatin1Char('x')));
    EXPECT_EQ(form.comment.text().size(), 40000U);
    platform.ui.expectBox(platform::Answer::ok, u"Comment should not be longer than 32767 characters");

    QTest::mouseClick(&widget<QPushButton>(form.okButton()), Qt::LeftButton);

    EXPECT_FALSE(form.ended());
    EXPECT_EQ(form.comment.text().size(), 40000U);
}

TEST_F(FormDialogs, aButtonReachesItsHandler) {
    show();
    int applied = 0;
    form.apply.onPress = [&] { ++applied; };
    QTest::mouseClick(&widget<QPushButton>(form.apply), Qt::LeftButton);
    EXPECT_EQ(applied, 1);
}

TEST_F(FormDialogs, aStandardButtonWithoutATextIsNotShown) {
    forms::SampleForm closable(platform, {.okLabel = u"", .cancelLabel = u"Close"});
    FormDialog dialog(closable);
    dialog.show();
    EXPECT_FALSE(dialog.widgetOf(closable.okButton())->isVisible());
    EXPECT_TRUE(dialog.widgetOf(closable.cancelButton())->isVisible());
}

TEST_F(FormDialogs, boxesAreWideEnoughForThirtyCharactersAndListsShowSeveralRows) {
    show();
    const auto& box = widget<QLineEdit>(form.name);
    EXPECT_GE(box.width(), box.fontMetrics().averageCharWidth() * 30);
    EXPECT_GE(widget<QWidget>(form.rules).height(), box.fontMetrics().lineSpacing() * 8);
}

TEST_F(FormDialogs, labelsAreAlignedAndBoxesToo) {
    show();
    const auto left = [this](const forms::Control& control) {
        return widget<QWidget>(control).mapTo(widget<QWidget>(control).window(), QPoint()).x();
    };
    EXPECT_EQ(left(form.name), left(form.password));
    EXPECT_EQ(left(form.name), left(form.comment));
}

TEST_F(FormDialogs, aDialogThatIsMadeLargerGivesTheRoomToItsLists) {
    auto& dialog = show();
    const int before = widget<QWidget>(form.rules).height();
    dialog.resize(dialog.width() + 100, dialog.height() + 600);
    settle();
    EXPECT_GT(widget<QWidget>(form.rules).height(), before + 50);
}

TEST_F(FormDialogs, aDialogThatIsMadeLargerGivesTheRoomToBoxesOfSeveralLinesToo) {
    auto& dialog = show();
    const int before = widget<QWidget>(form.comment).height();
    dialog.resize(dialog.width() + 100, dialog.height() + 600);
    settle();
    EXPECT_GT(widget<QWidget>(form.comment).height(), before + 50);
}

TEST_F(FormDialogs, runningAFormAnswersItsResult) {
    QTimer::singleShot(0, [] { QTest::keyClick(frontDialog(), Qt::Key_Return); });
    EXPECT_EQ(runForm(form), forms::idOk);
}

TEST_F(FormDialogs, aFormThatEndsByItselfClosesItsDialog) {
    QTimer::singleShot(0, [this] { form.EndDialog(291); });
    EXPECT_EQ(runForm(form), 291);
    EXPECT_EQ(frontDialog(), nullptr);
}

TEST_F(FormDialogs, aFormThatEndsWhileItIsFilledIsNeverShown) {
    form.opening = [this] { form.EndDialog(5); };
    EXPECT_EQ(runForm(form), 5);
}

TEST_F(FormDialogs, aFormIsNoLongerWatchedOnceItsDialogIsGone) {
    { const FormDialog dialog(form); }
    form.name.setText(u"later");
    form.EndDialog(1);
    EXPECT_EQ(form.result(), 1);
}

TEST_F(FormDialogs, aNestedFormStandsOverTheOneThatOpensIt) {
    forms::SampleForm nested(platform);
    const QWidget* owner = nullptr;
    form.apply.onPress = [&] {
        const QWidget* const front = frontDialog();
        QTimer::singleShot(0, [&, front] {
            owner = frontDialog()->parentWidget();
            EXPECT_EQ(owner, front);
            QTest::keyClick(frontDialog(), Qt::Key_Escape);
        });
        EXPECT_EQ(runForm(nested), forms::idCancel);
        EXPECT_FALSE(form.ended());
        form.EndDialog(7);
    };
    QTimer::singleShot(0, [this] { form.apply.userPressed(); });
    EXPECT_EQ(runForm(form), 7);
    EXPECT_NE(owner, nullptr);
    EXPECT_TRUE(nested.ended());
}

TEST_F(FormDialogs, whatAHandlerThrowsLeavesTheDialogAsItIs) {
    auto& dialog = show();
    form.apply.onPress = [] { throw std::runtime_error("lost"); };
    QTest::mouseClick(&widget<QPushButton>(form.apply), Qt::LeftButton);
    EXPECT_TRUE(dialog.isVisible());
    ASSERT_EQ(platform.failures().size(), 1U);
    EXPECT_EQ(platform.failures()[0], "Sample: lost");
}

// More boxes than fit below one another on a small screen.
class TallForm final : public forms::Form {
public:
    explicit TallForm(platform::Platform& owner) : Form(owner, u"Tall") {
        for (int i = 0; i < 40; ++i) {
            boxes.push_back(std::make_unique<forms::EditBox>(*this, wire::toWide("Box " + std::to_string(i))));
        }
    }
    std::vector<std::unique_ptr<forms::EditBox>> boxes;
};

TEST_F(FormDialogs, aTallFormStandsInTwoColumnsAndStaysOnTheScreen) {
    TallForm tall(platform);
    FormDialog dialog(tall);
    dialog.show();
    settle();
    const QWidget* const first = dialog.widgetOf(*tall.boxes[0]);
    const QWidget* const other = dialog.widgetOf(*tall.boxes[20]);
    EXPECT_GT(other->x(), first->x() + first->width());
    EXPECT_EQ(other->y(), first->y());
    EXPECT_LE(dialog.height(), dialog.screen()->availableSize().height());
    QTest::keyClick(&dialog, Qt::Key_Tab);
    EXPECT_TRUE(dialog.widgetOf(*tall.boxes[1])->hasFocus() || !dialog.isActiveWindow());
}

// Two groups beside each other, and a check box with its number and a remark.
class SideBySideForm final : public forms::Form {
public:
    explicit SideBySideForm(platform::Platform& host) : Form(host, u"Side by side") {
        right.setBeside(left);
        hours.setBeside(valid);
        remark.setBeside(hours);
        right.setVisible(false);
    }
    forms::EditBox name{*this, u"Name of the rule"};
    forms::CheckBox valid{*this, u"Valid for"};
    forms::EditBox hours{*this, u""};
    forms::Label remark{*this, u"", u"hours from the last print on"};
    forms::Group left{*this, u"Left"};
    forms::EditBox upper{left, u"Upper"};
    forms::EditBox lower{left, u"Lower"};
    forms::Group right{*this, u"Right"};
    forms::EditBox only{right, u"Only"};
};

TEST_F(FormDialogs, groupsBesideEachOtherShareALineAndTheirFirstBoxesAreLevel) {
    SideBySideForm pair(platform);
    FormDialog dialog(pair);
    dialog.show();
    settle();
    const int alone = dialog.widgetOf(pair.left)->width();

    pair.right.setVisible(true);
    for (int round = 0; round < 4; ++round) {
        settle(); // from the group to the dialog, each asks its parent for more room
    }

    const auto place = [&](const forms::Control& control) { return placeOn(dialog, control); };
    EXPECT_LT(place(pair.left).width(), alone);
    EXPECT_GT(place(pair.right).left(), place(pair.left).right());
    EXPECT_EQ(place(pair.right).top(), place(pair.left).top());
    EXPECT_EQ(place(pair.only).top(), place(pair.upper).top());
    EXPECT_TRUE(dialog.rect().contains(place(pair.right)))
        << dialog.width() << " by " << dialog.height() << ", but it ends at " << place(pair.right).right() << ", "
        << place(pair.right).bottom();
}

// A row of two boxes between two others.
class ThreeRowsForm final : public forms::Form {
public:
    explicit ThreeRowsForm(platform::Platform& host) : Form(host, u"Three rows") { unit.setBeside(number); }
    void showMiddle(bool visible) {
        number.setVisible(visible);
        unit.setVisible(visible);
    }
    forms::EditBox first{*this, u"First"};
    forms::EditBox number{*this, u"Number"};
    forms::EditBox unit{*this, u""};
    forms::EditBox last{*this, u"Last"};
};

TEST_F(FormDialogs, aLineThatIsHiddenLeavesNoGap) {
    ThreeRowsForm rows(platform);
    rows.showMiddle(false);
    FormDialog dialog(rows);
    dialog.show();
    settle();
    const auto pitch = [&] { return placeOn(dialog, rows.last).top() - placeOn(dialog, rows.first).top(); };
    const int without = pitch();

    rows.showMiddle(true);
    settle();
    EXPECT_EQ(pitch(), 2 * without);
    EXPECT_TRUE(dialog.widgetOf(rows.unit)->isVisible());

    rows.number.setVisible(false);
    settle();
    EXPECT_EQ(pitch(), 2 * without) << "one of the line is still to be seen";

    rows.unit.setVisible(false);
    settle();
    EXPECT_EQ(pitch(), without);
}

TEST_F(FormDialogs, aCheckBoxWithANumberStandsWhereLabelsStandAndItsRemarkInOneLine) {
    SideBySideForm pair(platform);
    FormDialog dialog(pair);
    dialog.show();
    settle();

    EXPECT_EQ(placeOn(dialog, pair.hours).left(), placeOn(dialog, pair.name).left());
    const QWidget* const remark = dialog.widgetOf(pair.remark);
    EXPECT_LT(remark->height(), 2 * remark->fontMetrics().lineSpacing() + 2);
    EXPECT_GE(remark->width(), remark->sizeHint().width());
}

} // namespace
} // namespace desktop
