#include "client/CQVXAdminClassProperties.h"
#include "tests/hosts/desktop/WindowFixture.h"

namespace desktoptest {
namespace {

// The arrow in front of an item of the tree.
class Expander : public WindowFixture {
protected:
    QModelIndex index(const QString& path) {
        return dynamic_cast<const desktop::ScopeModel&>(*panes().tree().model()).indexOf(item(path));
    }
    // The place in front of the item, with an arrow or without.
    QImage pictureBefore(const QString& path) {
        auto& tree = panes().tree();
        const QRect text = tree.visualRect(index(path));
        return tree.viewport()
            ->grab(QRect(text.left() - tree.indentation(), text.top(), tree.indentation(), text.height()))
            .toImage();
    }
    // A click onto that place.
    void click(const QString& path) {
        auto& tree = panes().tree();
        const QRect text = tree.visualRect(index(path));
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {},
                          QPoint(text.left() - tree.indentation() / 2, text.center().y()));
        settle();
        QTest::qWait(0);
    }
    static bool isBlank(const QImage& picture) {
        QImage blank = picture;
        blank.fill(picture.pixel(0, 0));
        return picture == blank;
    }
};

TEST_F(Expander, staysWhenTheItemCouldNotBeReadAndTriesItAgain) {
    open(QStringLiteral("Printers/München"));
    const QImage before = pictureBefore(QStringLiteral("Printers/Berlin"));
    ASSERT_FALSE(isBlank(before));
    const auto port = std::exchange(client::theProperties->port, std::uint16_t{1}); // where no server listens

    click(QStringLiteral("Printers/Berlin"));

    EXPECT_EQ(before, pictureBefore(QStringLiteral("Printers/Berlin")));

    client::theProperties->port = port;
    click(QStringLiteral("Printers/Berlin"));

    EXPECT_EQ((QStringList{"Headquarters", "Warehouse"}), childrenOf(QStringLiteral("Printers/Berlin")));
    EXPECT_TRUE(panes().tree().isExpanded(index(QStringLiteral("Printers/Berlin"))));
}

TEST_F(Expander, vanishesWhenASelectedItemTurnsOutToBeEmpty) {
    open(QStringLiteral("Printers/München"));
    panes().tree().setFocus();
    panes().tree().setCurrentIndex(index(QStringLiteral("Printers")));
    settle();
    whenAsked([](QDialog& dialog) {
        type(dialog, 0, QStringLiteral("North"));
        press(dialog, QStringLiteral("OK"));
    });
    choose(QStringLiteral("Create region"));
    window().actions().refresh->trigger();
    settle();
    ASSERT_FALSE(isBlank(pictureBefore(QStringLiteral("Printers/North"))));

    show(QStringLiteral("Printers/North"));
    QTest::qWait(0);

    EXPECT_TRUE(isBlank(pictureBefore(QStringLiteral("Printers/North"))));
}

} // namespace
} // namespace desktoptest
