#include "hosts/desktop/window/ContextMenus.h"

#include "tests/hosts/desktop/ModelFixture.h"

#include <QAction>
#include <QMenu>

namespace desktoptest {
namespace {

class ContextMenusTest : public ModelFixture {
protected:
    std::unique_ptr<QMenu> menuOfA() {
        start();
        perform([&](shell::Shell& console) { return console.select(a()); });
        return menus.make(shell.selection());
    }

    QWidget window;
    desktop::Actions actions{window};
    desktop::ContextMenus menus{operations, actions, window};
};

TEST_F(ContextMenusTest, entriesThatAreCheckedShowTheirMark) {
    const auto menu = menuOfA();

    EXPECT_FALSE(menu->actions().at(0)->isChecked());
    EXPECT_FALSE(menu->actions().at(0)->isCheckable());
    EXPECT_TRUE(menu->actions().at(2)->isChecked());
}

TEST_F(ContextMenusTest, entriesThatAreDisabledCantBeChosen) {
    estate.disabled = true;

    const auto menu = menuOfA();

    EXPECT_EQ(QStringLiteral("Do it"), menu->actions().at(0)->text());
    EXPECT_FALSE(menu->actions().at(0)->isEnabled());
    EXPECT_TRUE(menu->actions().at(2)->isEnabled());
}

} // namespace
} // namespace desktoptest
