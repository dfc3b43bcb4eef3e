#include "hosts/desktop/list/FilterBar.h"

#include "tests/hosts/desktop/WindowFixture.h"

#include <QAction>
#include <QLabel>
#include <QToolButton>

namespace desktoptest {
namespace {

class FilterOfList : public WindowFixture {
protected:
    void type(const QString& text) {
        panes().filter().selectAll();
        QTest::keyClicks(&panes().filter(), text);
        settle();
    }
    // Signs that stand in the box beside its own picture.
    int marks() {
        int marks = 0;
        for (const QAction* const action : panes().filter().actions()) {
            marks += action->text().isEmpty() ? 0 : 1;
        }
        return marks;
    }
    QWidget& clearButton() {
        auto* const action = panes().filter().findChild<QAction*>(QStringLiteral("_q_qlineeditclearaction"));
        for (auto* const button : panes().filter().findChildren<QToolButton*>()) {
            if (button->defaultAction() == action) {
                return *button;
            }
        }
        throw std::runtime_error("the box has no button that clears it");
    }
    double opacityOfClearButton() { return clearButton().property("opacity").toDouble(); }
};

TEST_F(FilterOfList, isMarkedWhileItNamesAColumnThatTheListDoesNotHave) {
    open(QStringLiteral("Printers/München"));
    const QString help = panes().filter().toolTip();

    type(QStringLiteral("colour:red"));

    const QString problem = QStringLiteral("There is no column \"colour\"; the filter takes this part as plain text.");
    EXPECT_EQ(1, marks());
    EXPECT_EQ(problem, panes().filter().accessibleDescription());
    EXPECT_TRUE(panes().filter().toolTip().contains(QStringLiteral("There is no column")));
    EXPECT_TRUE(panes().filterNote().isVisible());
    EXPECT_EQ(problem, panes().filterNote().text());

    type(QStringLiteral("model:laser"));

    EXPECT_EQ(0, marks());
    EXPECT_EQ(help, panes().filter().toolTip());
    EXPECT_FALSE(panes().filterNote().isVisible());
}

TEST_F(FilterOfList, isNotMarkedAnyMoreInAnotherList) {
    open(QStringLiteral("Printers/München"));
    type(QStringLiteral("model:\"laser"));
    ASSERT_EQ(QStringLiteral("The filter has a quote without an end."), panes().filter().problem());

    show(QStringLiteral("Printers"));

    EXPECT_EQ(QString(), panes().filter().text());
    EXPECT_EQ(0, marks());
    EXPECT_FALSE(panes().filterNote().isVisible());
}

TEST_F(FilterOfList, isMarkedWhenBackBringsItWithItsProblem) {
    open(QStringLiteral("Printers/München"));
    type(QStringLiteral("colour:red"));
    show(QStringLiteral("Printers"));

    window().actions().back->trigger();
    settle();

    EXPECT_EQ(QStringLiteral("colour:red"), panes().filter().text());
    EXPECT_EQ(1, marks());
}

TEST_F(FilterOfList, hasNoButtonToClearItWhileItIsEmpty) {
    open(QStringLiteral("Printers/München"));
    EXPECT_EQ(0.0, opacityOfClearButton());
    type(QStringLiteral("laser"));
    EXPECT_TRUE(waitFor([&] { return opacityOfClearButton() == 1.0; }));

    show(QStringLiteral("Printers"));

    ASSERT_EQ(QString(), panes().filter().text());
    EXPECT_TRUE(waitFor([&] { return opacityOfClearButton() == 0.0; }));
}

TEST_F(FilterOfList, saysInItsToolTipWhatItTakes) {
    open(QStringLiteral("Printers/München"));

    EXPECT_TRUE(panes().filter().accessibleDescription().contains(QStringLiteral("model:laser")));
}

} // namespace
} // namespace desktoptest
