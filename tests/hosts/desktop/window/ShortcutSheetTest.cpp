#include "hosts/desktop/window/ShortcutSheet.h"

#include "tests/hosts/desktop/WindowFixture.h"

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
