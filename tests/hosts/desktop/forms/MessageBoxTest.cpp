#include "hosts/desktop/forms/MessageBox.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <functional>

namespace desktop {
namespace {

using platform::Answer;
namespace boxStyle = platform::boxStyle;

// Shows a box, acts on it as the user, and returns its answer.
Answer answerTo(std::uint32_t style, const std::function<void(QMessageBox&)>& act,
                const wire::WideString& text = u"Delete the region?") {
    QTimer::singleShot(0, [&act] {
        auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        act(*box);
    });
    return showMessageBox(nullptr, text, u"Warning", style);
}

std::function<void(QMessageBox&)> pressing(Qt::Key key) {
    return [key](QMessageBox& box) { QTest::keyClick(&box, key); };
}

std::function<void(QMessageBox&)> clicking(QMessageBox::StandardButton button) {
    return [button](QMessageBox& box) { box.button(button)->click(); };
}

TEST(MessageBox, theButtonsAreThoseOfTheStyle) {
    EXPECT_EQ(answerTo(boxStyle::okCancel, clicking(QMessageBox::Ok)), Answer::ok);
    EXPECT_EQ(answerTo(boxStyle::okCancel, clicking(QMessageBox::Cancel)), Answer::cancel);
    EXPECT_EQ(answerTo(boxStyle::yesNo, clicking(QMessageBox::Yes)), Answer::yes);
    EXPECT_EQ(answerTo(boxStyle::yesNo, clicking(QMessageBox::No)), Answer::no);
    EXPECT_EQ(answerTo(boxStyle::yesNoCancel, clicking(QMessageBox::Cancel)), Answer::cancel);
    answerTo(boxStyle::ok, [](QMessageBox& box) {
        EXPECT_EQ(box.buttons().size(), 1);
        box.button(QMessageBox::Ok)->click();
    });
}

TEST(MessageBox, escapeAnswersCancelOrNoOrOk) {
    EXPECT_EQ(answerTo(boxStyle::okCancel, pressing(Qt::Key_Escape)), Answer::cancel);
    EXPECT_EQ(answerTo(boxStyle::yesNoCancel, pressing(Qt::Key_Escape)), Answer::cancel);
    EXPECT_EQ(answerTo(boxStyle::yesNo, pressing(Qt::Key_Escape)), Answer::no);
    EXPECT_EQ(answerTo(boxStyle::ok, pressing(Qt::Key_Escape)), Answer::ok);
}

TEST(MessageBox, theClosingCrossAnswersAsEscapeDoes) {
    EXPECT_EQ(answerTo(boxStyle::yesNo, [](QMessageBox& box) { box.close(); }), Answer::no);
}

TEST(MessageBox, theFirstButtonIsTheDefaultOneUnlessTheStyleSaysWhich) {
    EXPECT_EQ(answerTo(boxStyle::okCancel, pressing(Qt::Key_Return)), Answer::ok);
    EXPECT_EQ(answerTo(boxStyle::okCancel | boxStyle::secondIsDefault, pressing(Qt::Key_Return)), Answer::cancel);
    EXPECT_EQ(answerTo(boxStyle::ok | boxStyle::secondIsDefault, pressing(Qt::Key_Return)), Answer::ok);
}

TEST(MessageBox, nothingElseOfTheProgramCanBeUsedMeanwhile) {
    for (const auto style : {boxStyle::ok, boxStyle::ok | boxStyle::taskModal}) {
        answerTo(style, [](QMessageBox& box) {
            EXPECT_EQ(box.windowModality(), Qt::ApplicationModal);
            box.close();
        });
    }
}

TEST(MessageBox, theIconIsThatOfTheStyle) {
    const auto iconOf = [](std::uint32_t style) {
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        answerTo(style, [&](QMessageBox& box) {
            icon = box.icon();
            box.close();
        });
        return icon;
    };
    EXPECT_EQ(iconOf(boxStyle::ok), QMessageBox::NoIcon);
    EXPECT_EQ(iconOf(boxStyle::iconStop), QMessageBox::Critical);
    EXPECT_EQ(iconOf(boxStyle::iconQuestion), QMessageBox::Question);
    EXPECT_EQ(iconOf(boxStyle::iconWarning), QMessageBox::Warning);
    EXPECT_EQ(iconOf(boxStyle::iconInformation), QMessageBox::Information);
}

TEST(MessageBox, markupIsShownAsPlainText) {
    answerTo(
        boxStyle::ok,
        [](QMessageBox& box) {
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.text(), QStringLiteral("<img src='x'> & \"quotes\""));
            box.close();
        },
        u"<img src='x'> & \"quotes\"");
}

TEST(MessageBox, aLongTextStaysOnTheScreenAndCanBeReadWhole) {
    const wire::WideString text(65'535, u'x');
    answerTo(
        boxStyle::ok,
        [&](QMessageBox& box) {
            EXPECT_LE(box.width(), box.screen()->availableSize().width());
            EXPECT_LE(box.height(), box.screen()->availableSize().height());
            EXPECT_EQ(box.detailedText().size(), 65'535);
            box.button(QMessageBox::Ok)->click();
        },
        text);
}

TEST(MessageBox, aScreenReaderFindsCaptionAndText) {
    answerTo(boxStyle::ok, [](QMessageBox& box) {
        EXPECT_EQ(box.accessibleName(), QStringLiteral("Warning"));
        EXPECT_EQ(box.accessibleDescription(), QStringLiteral("Delete the region?"));
        box.close();
    });
}

TEST(MessageBox, theFrontWindowOwnsTheBox) {
    QWidget window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    answerTo(boxStyle::ok, [&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &window);
        box.close();
    });
}

TEST(MessageBox, aQuestionNamesItsObjectBeneathItsTextAsPlainText) {
    QTimer::singleShot(0, [] {
        auto* const box = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->text(), QStringLiteral("Delete the region?"));
        EXPECT_EQ(box->informativeText(), QStringLiteral("<b>Berlin</b>"));
        const auto* const label = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
        ASSERT_NE(label, nullptr);
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        EXPECT_TRUE(box->accessibleDescription().contains(QStringLiteral("<b>Berlin</b>")));
        box->close();
    });
    showMessageBox(nullptr, u"Delete the region?", u"Warning", boxStyle::okCancel, u"<b>Berlin</b>");
}

} // namespace
} // namespace desktop
