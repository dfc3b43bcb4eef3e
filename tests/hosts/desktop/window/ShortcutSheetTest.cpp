#include "hosts/desktop/window/ShortcutSheet.h"

#include "tests/hosts/desktop/WindowFixture.h"

#include <QHeaderView>
#include <QMenuBar>
#include <QTreeWidget>

namespace desktoptest {
namespace {

class Shortcuts : public WindowFixture {
protected:
    // What the sheet shows, "F5: Refresh".
    QStringList shown() {
        QStringList lines;
        whenAsked([&lines](QDialog& sheet) {
            for (QTreeWidgetItemIterator it(sheet.findChild<QTreeWidget*>()); *it != nullptr; ++it) {
                lines += (*it)->text(1) + QStringLiteral(": ") + (*it)->text(0);
            }
            sheet.reject();
        });
        window().actions().shortcuts->trigger();
        settle();
        return lines;
    }
};

TEST_F(Shortcuts, areShownWithTheirWholeTexts) {
    open();
    int count = 0;
    whenAsked([&count](QDialog& sheet) {
        const auto& tree = *sheet.findChild<QTreeWidget*>();
        EXPECT_GE(tree.viewport()->width(), tree.header()->length());
        for (QTreeWidgetItemIterator it(sheet.findChild<QTreeWidget*>()); *it != nullptr; ++it, ++count) {
            for (int column = 0; column < tree.columnCount(); ++column) {
                const QString text = (*it)->text(column);
                const int room = tree.visualRect(tree.indexFromItem(*it, column)).width();
                EXPECT_LE(tree.fontMetrics().horizontalAdvance(text), room) << text.toStdString();
            }
        }
        sheet.reject();
    });

    window().actions().shortcuts->trigger();
    settle();

    EXPECT_LT(20, count);
}

TEST_F(Shortcuts, areAllOnOneSheet) {
    open();

    const auto lines = shown();

    EXPECT_TRUE(lines.contains(QStringLiteral("F5: Refresh"))) << lines.join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(lines.contains(QStringLiteral("F3: Details")));
    EXPECT_TRUE(lines.contains(QStringLiteral("Ctrl+C: Copy")));
    EXPECT_TRUE(lines.contains(QStringLiteral("Ctrl+A: Select All")));
    EXPECT_TRUE(lines.contains(QStringLiteral("Ctrl+Z: Undo Move")));
    EXPECT_TRUE(lines.contains(QStringLiteral("Del: Delete")));
    EXPECT_TRUE(lines.contains(QStringLiteral("Enter: Open the selected row or its dialog")));
    EXPECT_TRUE(lines.contains(QStringLiteral("F1: Keyboard Shortcuts")));
    EXPECT_TRUE(lines.contains(QStringLiteral("Shift+F10, Menu: The menu of the selection")));
}

TEST_F(Shortcuts, areNotGivenTwice) {
    open();
    QStringList keys;
    for (const auto* const action : static_cast<const QWidget&>(window()).actions()) {
        if (!action->shortcut().isEmpty()) {
            keys += action->shortcut().toString();
        }
    }

    EXPECT_GT(keys.size(), 10);
    EXPECT_EQ(0, keys.removeDuplicates());
}

} // namespace
} // namespace desktoptest
