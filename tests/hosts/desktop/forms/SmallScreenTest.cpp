#include "forms/FormWalk.h"
#include "hosts/desktop/forms/FormDialog.h"
#include "hosts/desktop/forms/FormScroll.h"
#include "hosts/desktop/forms/SheetTabs.h"
#include "rules/NewPricePlanDlg.h"
#include "tests/hosts/desktop/forms/DialogFixture.h"
#include "tests/hosts/desktop/forms/ProductForms.h"

#include <QApplication>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace desktop {
namespace {

constexpr auto small = "small";
constexpr auto scaled = "scaled";

QScreen& screenNamed(const char* name) {
    const auto all = QGuiApplication::screens();
    const auto found = std::ranges::find_if(all, [name](QScreen* each) { return each->name() == QLatin1String(name); });
    return **found;
}

// A window on one of the screens, for dialogs to stand over.
class OnScreen {
public:
    explicit OnScreen(const char* name) {
        QScreen& screen = screenNamed(name);
        window_.setScreen(&screen);
        window_.move(screen.geometry().topLeft());
        window_.show();
    }
    QWidget* window() { return &window_; }

private:
    QWidget window_;
};

void settle() {
    for (int round = 0; round < 4; ++round) {
        QCoreApplication::processEvents();
    }
}

bool scrolls(const FormDialog& dialog) {
    return dialog.findChild<FormScroll*>()->verticalScrollBar()->maximum() > 0;
}

void expectFootInSight(FormDialog& dialog, const char* screen) {
    const QSize room = screenNamed(screen).size();
    for (const forms::Control* button : {&dialog.form().okButton(), &dialog.form().cancelButton()}) {
        const QWidget* const widget = dialog.widgetOf(*button);
        EXPECT_EQ(widget->visibleRegion().boundingRect().size(), widget->size());
        EXPECT_TRUE(dialog.rect().contains(placeOn(dialog, *button)));
    }
    EXPECT_LT(dialog.height(), room.height());
    EXPECT_LE(dialog.width(), room.width());
}

class SmallScreens : public testing::TestWithParam<ProductForm> {
protected:
    support::TestPlatform platform;
};

TEST_P(SmallScreens, needNoScrollingAt1280By800) {
    OnScreen screen(small);
    const auto form = GetParam().make(platform);
    FormDialog dialog(*form, screen.window());
    dialog.show();
    settle();

    EXPECT_FALSE(scrolls(dialog)) << dialog.width() << " by " << dialog.height();
    expectFootInSight(dialog, small);
}

TEST_P(SmallScreens, showTheirStandardButtonsAtTwiceTheScaleWhateverIsScrolled) {
    OnScreen screen(scaled);
    const auto form = GetParam().make(platform);
    FormDialog dialog(*form, screen.window());
    dialog.show();
    settle();

    for (forms::Control* control : forms::controlsOf(*form)) {
        control->setFocus();
        settle();
        expectFootInSight(dialog, scaled);
    }
}

TEST_P(SmallScreens, showWhateverGetsTheKeyboardAtTwiceTheScale) {
    OnScreen screen(scaled);
    const auto form = GetParam().make(platform);
    FormDialog dialog(*form, screen.window());
    dialog.show();
    settle();

    for (forms::Control* control : forms::controlsOf(*form)) {
        QWidget* const widget = dialog.widgetOf(*control);
        if (control->reachable() && widget->focusPolicy() != Qt::NoFocus) {
            control->setFocus();
            settle();
            EXPECT_FALSE(widget->visibleRegion().isEmpty()) << wire::toUtf8(forms::fullName(*control));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(OfTheProduct, SmallScreens, testing::ValuesIn(productForms()),
                         [](const auto& tested) { return tested.param.name; });

class SmallScreen : public testing::Test {
protected:
    support::TestPlatform platform;
    rules::NewPricePlanDlg plan{platform};
};

TEST_F(SmallScreen, aPricePlanWithAbsolutePricesNeedsNoScrollingAt1280By800) {
    OnScreen screen(small);
    FormDialog dialog(plan, screen.window());
    dialog.show();
    plan.papers.multiplierType.userSelected(1);
    settle();

    EXPECT_FALSE(scrolls(dialog)) << dialog.width() << " by " << dialog.height();
    expectFootInSight(dialog, small);
}

TEST_F(SmallScreen, aFormThatIsStillTooHighIsDividedIntoSheets) {
    OnScreen screen(scaled);
    FormDialog dialog(plan, screen.window());
    dialog.show();
    settle();

    const auto* const tabs = dialog.findChild<SheetTabs*>();
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->tabText(0), QStringLiteral("Plan, Multipliers"));
    EXPECT_EQ(tabs->tabText(1), QStringLiteral("Papers"));
    EXPECT_EQ(tabs->currentIndex(), 0);
    expectFootInSight(dialog, scaled);
}

TEST_F(SmallScreen, aControlThatTheFormGivesTheKeyboardBringsItsSheetToTheFront) {
    OnScreen screen(scaled);
    FormDialog dialog(plan, screen.window());
    dialog.show();
    settle();

    plan.papers.prices.setFocus();

    EXPECT_EQ(dialog.findChild<SheetTabs*>()->currentIndex(), 1);
}

TEST_F(SmallScreen, aLargeScreenShowsTheFormInOnePiece) {
    FormDialog dialog(plan);
    dialog.show();
    settle();

    EXPECT_EQ(dialog.findChild<SheetTabs*>(), nullptr);
    EXPECT_LT(placeOn(dialog, plan.name).bottom(), placeOn(dialog, plan.papers.prices).top());
}

} // namespace
} // namespace desktop
