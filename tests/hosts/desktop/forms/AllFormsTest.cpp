#include "forms/FormWalk.h"
#include "hosts/desktop/forms/FormDialog.h"
#include "tests/hosts/desktop/forms/ProductForms.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QPixmap>

#include <functional>
#include <memory>
#include <string>

namespace desktop {
namespace {

// A form of the product, with its font scaled to a percentage.
struct Case {
    std::string name;
    int scale = 100;
    std::function<std::unique_ptr<forms::Form>(platform::Platform&)> make;
};

std::vector<Case> allCases() {
    std::vector<Case> cases;
    for (const auto& form : productForms()) {
        for (const int scale : {100, 150, 200}) {
            cases.push_back({form.name, scale, form.make});
        }
    }
    return cases;
}

class AllForms : public testing::TestWithParam<Case> {
protected:
    AllForms() {
        QFont font = before_;
        font.setPointSizeF(before_.pointSizeF() * GetParam().scale / 100);
        QApplication::setFont(font);
    }
    ~AllForms() override { QApplication::setFont(before_); }

    AllForms(const AllForms&) = delete;
    AllForms& operator=(const AllForms&) = delete;

private:
    QFont before_ = QApplication::font();
};

QString withoutMarks(QString text) {
    return text.remove(QLatin1Char('&'));
}

// All readable texts of the dialog except the content of its boxes.
QStringList textsOn(const QWidget& dialog) {
    QStringList texts;
    for (const auto* label : dialog.findChildren<QLabel*>()) {
        if (label->isVisible()) {
            EXPECT_GE(label->width(), label->wordWrap() ? 1 : label->sizeHint().width()) << label->text().toStdString();
            texts.append(withoutMarks(label->text()));
        }
    }
    for (const auto* button : dialog.findChildren<QAbstractButton*>()) {
        if (button->isVisible()) {
            EXPECT_GE(button->width(), button->minimumSizeHint().width()) << button->text().toStdString();
            texts.append(withoutMarks(button->text()));
        }
    }
    for (const auto* group : dialog.findChildren<QGroupBox*>()) {
        texts.append(withoutMarks(group->title()));
    }
    return texts;
}

TEST_P(AllForms, areDrawnWithEveryLabelReadable) {
    support::TestPlatform platform;
    const auto form = GetParam().make(platform);
    FormDialog dialog(*form);
    dialog.show();
    QApplication::processEvents();

    const QStringList texts = textsOn(dialog);
    for (forms::Control* control : forms::controlsOf(*form)) {
        const auto label = QString::fromStdU16String(forms::readableLabel(control->label()));
        const bool shown = control->visible() && control->container().shown();
        EXPECT_TRUE(!shown || label.isEmpty() || texts.contains(label)) << label.toStdString();
        const QWidget* const widget = dialog.widgetOf(*control);
        ASSERT_NE(widget, nullptr);
        if (control->reachable()) {
            const QRect place(widget->mapTo(&dialog, QPoint()), widget->size());
            EXPECT_TRUE(dialog.rect().contains(place))
                << label.toStdString() << " is cut off: the dialog is " << dialog.width() << " by " << dialog.height();
            EXPECT_TRUE(widget->visibleRegion().boundingRect().size() == widget->size()) << label.toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(OfTheProduct, AllForms, testing::ValuesIn(allCases()),
                         [](const auto& tested) { return tested.param.name + std::to_string(tested.param.scale); });

} // namespace
} // namespace desktop
