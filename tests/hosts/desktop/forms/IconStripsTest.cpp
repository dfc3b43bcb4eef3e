#include "hosts/desktop/look/IconStrips.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

#include <algorithm>
#include <string>
#include <vector>

namespace desktop {
namespace {

bool hasSomethingDrawn(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 200) {
                return true;
            }
        }
    }
    return false;
}

TEST(IconStrips, everyIndexOfBothStripsHasADrawing) {
    const IconStrips icons;
    EXPECT_EQ(IconStrips::count(console::commonStrip), 22);
    EXPECT_EQ(IconStrips::count(console::driverAndShortIdStrip), 17);
    for (const auto& strip : {console::commonStrip, console::driverAndShortIdStrip}) {
        for (int index = 0; index < IconStrips::count(strip); ++index) {
            SCOPED_TRACE(index);
            ASSERT_FALSE(icons.icon(strip, index).isNull());
            EXPECT_TRUE(hasSomethingDrawn(icons.icon(strip, index).pixmap(16, 16).toImage()));
        }
    }
}

TEST(IconStrips, noTwoDrawingsAreTheSame) {
    const IconStrips icons;
    for (const auto& strip : {console::commonStrip, console::driverAndShortIdStrip}) {
        for (int index = 1; index < IconStrips::count(strip); ++index) {
            for (int other = 0; other < index; ++other) {
                EXPECT_NE(icons.icon(strip, index).pixmap(32, 32).toImage(),
                          icons.icon(strip, other).pixmap(32, 32).toImage())
                    << index << " and " << other;
            }
        }
    }
}

TEST(IconStrips, theKindsOfRulesThatShareAnIndexAreToldApart) {
    const IconStrips icons;
    const std::vector<std::string> classes{"class RulesRootNode", "class RuleSetNode", "class PricePlansNode",
                                           "class PageLimitersNode", "class ShortIdNode"};
    std::vector<QImage> drawn;
    for (const auto& name : classes) {
        SCOPED_TRACE(name);
        drawn.push_back(icons.iconOf(name, console::commonStrip, 20).pixmap(32, 32).toImage());
        EXPECT_TRUE(hasSomethingDrawn(drawn.back()));
        EXPECT_EQ(std::ranges::count(drawn, drawn.back()), 1);
    }
    EXPECT_EQ(drawn.front(), icons.icon(console::commonStrip, 20).pixmap(32, 32).toImage());
}

TEST(IconStrips, aKindWithAnotherIndexHasThatOne) {
    const IconStrips icons;
    EXPECT_EQ(icons.iconOf("class ShortIdNode", console::commonStrip, 6).pixmap(32, 32).toImage(),
              icons.icon(console::commonStrip, 6).pixmap(32, 32).toImage());
    EXPECT_TRUE(icons.iconOf("class ShortIdNode", console::commonStrip, 99).isNull());
}

TEST(IconStrips, anIndexOrAStripThatIsNotThereIsEmpty) {
    const IconStrips icons;
    EXPECT_TRUE(icons.icon(console::commonStrip, -1).isNull());
    EXPECT_TRUE(icons.icon(console::commonStrip, 22).isNull());
    EXPECT_TRUE(icons.icon(console::noStrip, 0).isNull());
    EXPECT_EQ(IconStrips::count(console::noStrip), 0);
}

TEST(IconStrips, aDrawingIsSharpAtTwoHundredPerCent) {
    const IconStrips icons;
    const QPixmap pixmap = icons.icon(console::commonStrip, 2).pixmap(QSize(16, 16), 2.0);
    EXPECT_EQ(pixmap.size(), QSize(32, 32));
    EXPECT_EQ(pixmap.devicePixelRatio(), 2.0);
    EXPECT_EQ(pixmap.toImage().pixel(16, 14),
              icons.icon(console::commonStrip, 2).pixmap(32, 32).toImage().pixel(16, 14));
}

TEST(IconStrips, aDisabledIconIsFaded) {
    const IconStrips icons;
    const QIcon icon = icons.icon(console::commonStrip, 6);
    EXPECT_GT(qAlpha(icon.pixmap(QSize(32, 32)).toImage().pixel(6, 5)), 250);
    EXPECT_LT(qAlpha(icon.pixmap(QSize(32, 32), QIcon::Disabled).toImage().pixel(6, 5)), 150);
}

TEST(IconStrips, theProgramHasAnIconOfItsOwn) {
    EXPECT_FALSE(IconStrips::application().isNull());
    EXPECT_TRUE(hasSomethingDrawn(IconStrips::application().pixmap(48, 48).toImage()));
}

} // namespace
} // namespace desktop
