#include "tests/hosts/desktop/forms/DialogFixture.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

namespace desktop {
namespace {

class FormTexts : public DialogFixture {};

TEST_F(FormTexts, whatTheFormWritesStandsInTheBox) {
    form.opening = [this] { form.name.setText(u"before it is shown"); };
    show();
    EXPECT_EQ(widget<QLineEdit>(form.name).text(), QStringLiteral("before it is shown"));
    form.name.setText(u"later");
    EXPECT_EQ(widget<QLineEdit>(form.name).text(), QStringLiteral("later"));
}

TEST_F(FormTexts, whatThePersonTypesReachesTheFormOnceForEachKey) {
    show();
    int changes = 0;
    form.name.onChange = [&] { ++changes; };
    QTest::keyClicks(&widget<QLineEdit>(form.name), QStringLiteral("abc"));
    EXPECT_EQ(form.name.text(), u"abc");
    EXPECT_EQ(changes, 3);
}

TEST_F(FormTexts, whatTheFormWritesIsNotReportedBack) {
    show();
    int changes = 0;
    form.name.onChange = [&] { ++changes; };
    form.comment.onChange = [&] { ++changes; };
    form.invisible.onChange = [&] { ++changes; };
    form.from.onChange = [&] { ++changes; };
    form.name.setText(u"echo");
    form.comment.setText(u"echo");
    form.invisible.setChecked(true);
    form.from.setValue(forms::DateTime{.year = 2024, .month = 2, .day = 29});
    settle();
    EXPECT_EQ(changes, 0);
}

TEST_F(FormTexts, aHandlerMayChangeTheTextThatIsBeingTyped) {
    show();
    form.name.onChange = [this] { form.name.setText(u"other"); };
    QTest::keyClicks(&widget<QLineEdit>(form.name), QStringLiteral("x"));
    EXPECT_EQ(widget<QLineEdit>(form.name).text(), QStringLiteral("other"));
    EXPECT_EQ(form.name.text(), u"other");
}

TEST_F(FormTexts, aPasswordIsNotShown) {
    show();
    auto& box = widget<QLineEdit>(form.password);
    QTest::keyClicks(&box, QStringLiteral("secret"));
    EXPECT_EQ(box.echoMode(), QLineEdit::Password);
    EXPECT_NE(box.displayText(), QStringLiteral("secret"));
    EXPECT_EQ(form.password.text(), u"secret");
}

TEST_F(FormTexts, typingStopsAtTheLimit) {
    show();
    form.name.setLimit(3);
    QTest::keyClicks(&widget<QLineEdit>(form.name), QStringLiteral("abcdef"));
    EXPECT_EQ(form.name.text(), u"abc");
    EXPECT_EQ(widget<QLineEdit>(form.name).text(), QStringLiteral("abc"));
}

TEST_F(FormTexts, theCursorStaysWhereThePersonTypes) {
    show();
    form.name.setLimit(3);
    form.name.setText(u"abcdef");
    auto& box = widget<QLineEdit>(form.name);
    box.setCursorPosition(2);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(form.name.text(), u"acdef");
    EXPECT_EQ(box.cursorPosition(), 1);
}

TEST_F(FormTexts, theLimitDoesNotBindTheFormItself) {
    show();
    form.name.setLimit(3);
    form.name.setText(u"abcdef");
    auto& box = widget<QLineEdit>(form.name);
    EXPECT_EQ(box.text(), QStringLiteral("abcdef"));
    box.setCursorPosition(6);
    QTest::keyClicks(&box, QStringLiteral("g"));
    EXPECT_EQ(form.name.text(), u"abcdef");
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(form.name.text(), u"abcde");
}

TEST_F(FormTexts, typingIntoSeveralLinesStopsAtTheLimit) {
    show();
    auto& box = widget<QPlainTextEdit>(form.comment);
    QTest::keyClicks(&box, QStringLiteral("abcdefgh"));
    EXPECT_EQ(form.comment.text(), u"abcde");
    EXPECT_EQ(box.toPlainText(), QStringLiteral("abcde"));
}

TEST_F(FormTexts, aPastedPieceIsCutAtTheLimit) {
    show();
    auto& box = widget<QPlainTextEdit>(form.comment);
    box.setPlainText(QStringLiteral("ad"));
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(1);
    box.setTextCursor(cursor);
    box.insertPlainText(QStringLiteral("1234567"));
    EXPECT_EQ(form.comment.text(), u"a123d");
    EXPECT_EQ(box.toPlainText(), QStringLiteral("a123d"));
}

TEST_F(FormTexts, aLineEndsWithTheTwoCharactersOfThePlatform) {
    show();
    auto& box = widget<QPlainTextEdit>(form.comment);
    QTest::keyClicks(&box, QStringLiteral("a"));
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClicks(&box, QStringLiteral("b"));
    EXPECT_EQ(form.comment.text(), u"a\r\nb");
    EXPECT_FALSE(form.ended());
    form.comment.setText(u"c\r\nd");
    EXPECT_EQ(box.toPlainText(), QStringLiteral("c\nd"));
}

TEST_F(FormTexts, longTextsStandInTheirBoxesWhole) {
    show();
    const wire::WideString longText(65'535, u'x');
    form.name.setText(longText);
    form.comment.setText(longText);
    EXPECT_EQ(widget<QLineEdit>(form.name).text().size(), 65'535);
    EXPECT_EQ(widget<QPlainTextEdit>(form.comment).toPlainText().size(), 65'535);
    QTest::keyClick(&widget<QLineEdit>(form.name), Qt::Key_Delete);
    EXPECT_EQ(form.name.text().size(), 65'534U);
}

TEST_F(FormTexts, aTextWithoutMeaningComesBackAsItWas) {
    show();
    const wire::WideString odd{u'a', char16_t(0xD800), u'\u202E', u'\uFEFF'};
    form.name.setText(odd);
    auto& box = widget<QLineEdit>(form.name);
    box.end(false);
    QTest::keyClicks(&box, QStringLiteral("z"));
    EXPECT_EQ(form.name.text(), odd + u"z");
}

TEST_F(FormTexts, markupIsShownAsPlainText) {
    show();
    form.version.setText(u"<b>bold</b> & more");
    const auto& label = widget<QLabel>(form.version);
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
    EXPECT_EQ(label.text(), QStringLiteral("<b>bold</b> & more"));
}

TEST_F(FormTexts, aReadOnlyBoxTakesNothingFromTheKeyboard) {
    show();
    form.name.setText(u"fixed");
    form.name.setReadOnly(true);
    QTest::keyClicks(&widget<QLineEdit>(form.name), QStringLiteral("x"));
    EXPECT_EQ(form.name.text(), u"fixed");
    form.comment.setReadOnly(true);
    QTest::keyClicks(&widget<QPlainTextEdit>(form.comment), QStringLiteral("x"));
    EXPECT_EQ(form.comment.text(), u"");
}

TEST_F(FormTexts, theKeyboardLeavingABoxIsToldOnce) {
    show();
    int left = 0;
    form.name.onLeave = [&] { ++left; };
    widget<QLineEdit>(form.name).setFocus();
    QTest::keyClick(&widget<QLineEdit>(form.name), Qt::Key_Tab);
    EXPECT_EQ(left, 0);
    settle();
    EXPECT_EQ(left, 1);
}

TEST_F(FormTexts, aHandlerOfLeavingMayTakeTheKeyboardBack) {
    show();
    widget<QLineEdit>(form.name).setFocus();
    form.name.onLeave = [this] { form.name.setFocus(); };
    QTest::keyClick(&widget<QLineEdit>(form.name), Qt::Key_Tab);
    settle();
    EXPECT_TRUE(widget<QLineEdit>(form.name).hasFocus());
}

TEST_F(FormTexts, aCheckIsMirroredBothWays) {
    show();
    auto& box = widget<QCheckBox>(form.invisible);
    form.invisible.setChecked(true);
    EXPECT_TRUE(box.isChecked());
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_FALSE(form.invisible.checked());
}

TEST_F(FormTexts, aDayIsMirroredBothWays) {
    show();
    form.tabs.show(1);
    auto& box = widget<QDateTimeEdit>(form.from);
    form.from.setValue(forms::DateTime{2024, 2, 29, 23, 59, 58});
    EXPECT_EQ(box.dateTime(), QDateTime(QDate(2024, 2, 29), QTime(23, 59, 58), Qt::UTC));
    box.setDateTime(QDateTime(QDate(1, 1, 1), QTime(0, 0, 1), Qt::UTC));
    EXPECT_EQ(form.from.value(), (forms::DateTime{1, 1, 1, 0, 0, 1}));
}

TEST_F(FormTexts, aDayThatMustBeThereIsThereOnceItIsSeen) {
    show();
    EXPECT_FALSE(form.from.value());
    form.tabs.show(1);
    settle();
    ASSERT_TRUE(form.from.value());
    EXPECT_EQ(widget<QDateTimeEdit>(form.from).date().year(), form.from.value()->year);
}

TEST(FormTextsOfDays, aDayIsShownInTheFormThatIsAskedFor) {
    support::TestPlatform platform;
    forms::SampleForm form(platform);
    forms::DateTimePicker day(form, u"Day", {.time = false, .format = u"yyyy-MM-dd"});
    day.setValue(forms::DateTime{.year = 2024, .month = 2, .day = 9});
    const FormDialog dialog(form);
    EXPECT_EQ(dynamic_cast<QDateTimeEdit&>(*dialog.widgetOf(day)).text(), QStringLiteral("2024-02-09"));
}

// The time after a person has typed over another one from its beginning.
QString typedOver(QTime before, const char16_t* format, const QString& text) {
    support::TestPlatform platform;
    forms::SampleForm form(platform);
    forms::DateTimePicker time(form, u"Time", {.date = false, .format = format});
    FormDialog dialog(form);
    dialog.show();
    auto& box = dynamic_cast<QDateTimeEdit&>(*dialog.widgetOf(time));
    box.setTime(before);
    box.setFocus(Qt::TabFocusReason);
    box.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClicks(&box, text);
    QTest::keyClick(&box, Qt::Key_Tab);
    const auto value = time.value().value_or(forms::DateTime());
    return QTime(value.hour, value.minute, value.second).toString(QStringLiteral("HH:mm:ss"));
}

struct TypedTime {
    const char16_t* format;
    const char* typed;
    const char* taken;
};

class FormTextsOfTimes : public testing::TestWithParam<TypedTime> {};

TEST_P(FormTextsOfTimes, areTakenAsTheyAreTyped) {
    for (const QTime before : {QTime(3, 4, 5), QTime(21, 4, 5), QTime(0, 0, 0), QTime(12, 0, 0)}) {
        SCOPED_TRACE(before.toString().toStdString());
        EXPECT_EQ(typedOver(before, GetParam().format, QString::fromLatin1(GetParam().typed)).toStdString(),
                  GetParam().taken);
    }
}

INSTANTIATE_TEST_SUITE_P(Typed, FormTextsOfTimes,
                         testing::Values(TypedTime{u"h:mm:ss AP", "12:30:15 PM", "12:30:15"},
                                         TypedTime{u"h:mm:ss AP", "12:30:15 AM", "00:30:15"},
                                         TypedTime{u"h:mm:ss AP", "1:30:15 pm", "13:30:15"},
                                         TypedTime{u"h:mm:ss AP", "123015PM", "12:30:15"},
                                         TypedTime{u"hh:mm:ss ap", "11:59:58 am", "11:59:58"},
                                         TypedTime{u"hh:mm:ss", "23:30:15", "23:30:15"},
                                         TypedTime{u"hh:mm:ss", "233015", "23:30:15"}));

// Digits only, a day that may be missing, and a value with a label.
class OtherForm final : public forms::Form {
public:
    explicit OtherForm(platform::Platform& owner) : Form(owner, u"Others") {}
    forms::EditBox port{*this, u"Port", {.digitsOnly = true}};
    forms::DateTimePicker until{*this, u"Until", {.time = false, .optional = true}};
    forms::Label status{*this, u"Physical Status", u"OK"};
};

TEST(FormTextsOfOtherKinds, onlyDigitsAreTakenFromTheKeyboardAndOfPastedPieces) {
    support::TestPlatform platform;
    OtherForm form(platform);
    FormDialog dialog(form);
    dialog.show();
    auto& box = dynamic_cast<QLineEdit&>(*dialog.widgetOf(form.port));
    QTest::keyClicks(&box, QStringLiteral("5x0y"));
    EXPECT_EQ(form.port.text(), u"50");
    EXPECT_EQ(box.text(), QStringLiteral("50"));
    box.setCursorPosition(1);
    QTest::keyClicks(&box, QStringLiteral("z"));
    EXPECT_EQ(box.cursorPosition(), 1);
    form.port.setText(u"none");
    EXPECT_EQ(box.text(), QStringLiteral("none"));
    box.end(false);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(form.port.text(), u"non");
}

TEST(FormTextsOfOtherKinds, aDayThatMayBeMissingIsSwitchedOnAndOff) {
    support::TestPlatform platform;
    OtherForm form(platform);
    FormDialog dialog(form);
    dialog.show();
    auto& box = dynamic_cast<QDateTimeEdit&>(*dialog.widgetOf(form.until));
    auto& set = *box.parentWidget()->findChild<QCheckBox*>();
    EXPECT_FALSE(set.isChecked());
    EXPECT_FALSE(box.isEnabled());
    EXPECT_FALSE(form.until.value());
    set.click();
    EXPECT_TRUE(form.until.value());
    EXPECT_TRUE(box.isEnabled());
    set.click();
    EXPECT_FALSE(form.until.value());
    form.until.setValue(forms::DateTime{.year = 2030, .month = 1, .day = 2});
    EXPECT_TRUE(set.isChecked());
    EXPECT_EQ(box.date(), QDate(2030, 1, 2));
}

TEST(FormTextsOfOtherKinds, aShownValueIsReadOutWithItsLabel) {
    support::TestPlatform platform;
    OtherForm form(platform);
    FormDialog dialog(form);
    const QWidget& value = *dialog.widgetOf(form.status);
    EXPECT_EQ(value.accessibleName(), QStringLiteral("Physical Status: OK"));
    form.status.setText(u"Offline");
    EXPECT_EQ(value.accessibleName(), QStringLiteral("Physical Status: Offline"));
}

TEST_F(FormTexts, aBoxThatCannotBeTypedIntoDoesNotLookAsIfItCould) {
    show();
    const auto ground = [](const QWidget& box) { return box.palette().color(QPalette::Active, QPalette::Base); };
    const QColor editable = ground(widget<QLineEdit>(form.name));
    form.name.setReadOnly(true);
    form.comment.setReadOnly(true);
    EXPECT_NE(ground(widget<QLineEdit>(form.name)), editable);
    EXPECT_NE(ground(widget<QPlainTextEdit>(form.comment)), editable);
}

TEST_F(FormTexts, aProblemIsMarkedAndToldUntilItIsSolved) {
    show();
    const auto& box = widget<QLineEdit>(form.name);
    form.name.setProblem(u"Not a <number>");
    ASSERT_EQ(box.actions().size(), 1);
    EXPECT_FALSE(box.actions().front()->icon().isNull());
    EXPECT_EQ(box.accessibleDescription(), QStringLiteral("Not a <number>"));
    EXPECT_TRUE(box.toolTip().contains(QStringLiteral("Not a &lt;number&gt;")));

    form.name.setProblem({});
    EXPECT_TRUE(box.actions().isEmpty());
    EXPECT_TRUE(box.toolTip().isEmpty());
}

} // namespace
} // namespace desktop
