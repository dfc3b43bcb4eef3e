#include "hosts/desktop/window/PartButtons.h"

#include "tests/hosts/desktop/WindowFixture.h"

#include <QStatusBar>
#include <QToolButton>

namespace desktoptest {
namespace {

class PartsOfList : public WindowFixture {
protected:
    QToolButton* button(const QString& text) {
        for (auto* const each : window().status().parts().buttons()) {
            if (each->accessibleName() == text) {
                return each;
            }
        }
        return nullptr;
    }
    QStringList statusTexts() {
        QStringList texts;
        for (const auto* const label : window().statusBar()->findChildren<QLabel*>()) {
            texts += label->text();
        }
        return texts;
    }
};

TEST_F(PartsOfList, areFiltersToClick) {
    open(QStringLiteral("Printers/München"));
    auto* const jobs = button(QStringLiteral("4 jobs"));
    ASSERT_NE(nullptr, jobs);
    EXPECT_TRUE(jobs->isVisible());

    QTest::mouseClick(jobs, Qt::LeftButton);
    settle();

    EXPECT_EQ(QStringLiteral("jobs:>0"), panes().filter().text());
    EXPECT_EQ((QStringList{"MUC-003"}), rows());
    EXPECT_TRUE(jobs->isChecked());

    QTest::mouseClick(jobs, Qt::LeftButton);
    settle();

    EXPECT_EQ(QString(), panes().filter().text());
    EXPECT_EQ(8, rows().size());
    EXPECT_FALSE(jobs->isChecked());
}

TEST_F(PartsOfList, standBesideAMessage) {
    open(QStringLiteral("Printers/München"));
    const auto* const jobs = button(QStringLiteral("4 jobs"));
    const QString message = QStringLiteral("'MUC-001' is cut");

    window().statusBar()->showMessage(message);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);

    const auto labels = window().statusBar()->findChildren<QLabel*>();
    const auto said = std::ranges::find(labels, message, &QLabel::text);
    ASSERT_NE(labels.end(), said);
    EXPECT_TRUE((*said)->isVisible());
    EXPECT_LE((*said)->fontMetrics().horizontalAdvance(message), (*said)->width());
    EXPECT_TRUE(jobs->isVisible());
    EXPECT_LE((*said)->geometry().right(), window().status().parts().x());
    EXPECT_FALSE(statusTexts().contains(QStringLiteral("8 rows")));
    window().statusBar()->clearMessage();
    EXPECT_TRUE(statusTexts().contains(QStringLiteral("8 rows")));
}

TEST_F(PartsOfList, leaveTheRestOfTheFilterAlone) {
    open(QStringLiteral("Printers/München"));
    QTest::keyClicks(&panes().filter(), QStringLiteral("muc"));

    QTest::mouseClick(button(QStringLiteral("4 jobs")), Qt::LeftButton);
    settle();

    EXPECT_EQ(QStringLiteral("muc jobs:>0"), panes().filter().text());
}

TEST_F(PartsOfList, areDownWhileAFilterThatWasTypedAsksForThem) {
    open(QStringLiteral("Printers/München"));

    QTest::keyClicks(&panes().filter(), QStringLiteral("\"Jobs In Queue\":>0 x"));
    settle();

    EXPECT_TRUE(button(QStringLiteral("4 jobs"))->isChecked());
}

TEST_F(PartsOfList, canBeReachedAndPressedByKeys) {
    open(QStringLiteral("Printers/München"));
    auto* const jobs = button(QStringLiteral("4 jobs"));
    window().activateWindow();
    panes().list().setFocus();
    for (int steps = 0; steps < 30 && !jobs->hasFocus(); ++steps) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    ASSERT_TRUE(jobs->hasFocus());

    QTest::keyClick(jobs, Qt::Key_Space);
    settle();

    EXPECT_EQ((QStringList{"MUC-003"}), rows());
    EXPECT_TRUE(jobs->hasFocus());
    EXPECT_TRUE(jobs->accessibleDescription().contains(QStringLiteral("jobs:>0")));
}

TEST_F(PartsOfList, areThoseOfTheListShown) {
    open(QStringLiteral("Printers/München"));
    ASSERT_FALSE(window().status().parts().buttons().empty());

    show(QStringLiteral("Printers"));

    EXPECT_TRUE(window().status().parts().buttons().empty());
    EXPECT_TRUE(statusTexts().contains(QStringLiteral("3 regions"))) << statusTexts().join(u'|').toStdString();
}

TEST_F(PartsOfList, giveWayInANarrowWindow) {
    open(QStringLiteral("Printers/München"));
    desktop::PartButtons parts;
    parts.setParts({{.column = 2, .count = 3, .text = u"with errors", .filter = u"snmp:error"},
                    {.column = 1, .count = 17, .text = u"jobs & more", .filter = u"jobs:>0"}},
                   shell().pane());
    parts.show();
    parts.resize(parts.sizeHint());
    EXPECT_TRUE(parts.buttons()[1]->isVisible());
    EXPECT_EQ(QStringLiteral("17 jobs && more"), parts.buttons()[1]->text());

    parts.resize(parts.width() - 1, parts.height());

    EXPECT_TRUE(parts.buttons()[0]->isVisible());
    EXPECT_FALSE(parts.buttons()[1]->isVisible());
    EXPECT_EQ(0, parts.minimumSizeHint().width());
}

} // namespace
} // namespace desktoptest
