#include "hosts/desktop/forms/MessageBox.h"

#include "hosts/desktop/forms/ShownText.h"
#include "hosts/desktop/look/SvgIcon.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>

#include <vector>

namespace desktop {
namespace {

using platform::Answer;
namespace boxStyle = platform::boxStyle;

struct Choice {
    QMessageBox::StandardButton button;
    Answer answer;
};

constexpr Choice ok{QMessageBox::Ok, Answer::ok};
constexpr Choice cancel{QMessageBox::Cancel, Answer::cancel};
constexpr Choice yes{QMessageBox::Yes, Answer::yes};
constexpr Choice no{QMessageBox::No, Answer::no};

// In the platform's order; the last one is the answer for Escape.
std::vector<Choice> choicesOf(std::uint32_t style) {
    switch (style & boxStyle::buttonMask) {
    case boxStyle::okCancel:
        return {ok, cancel};
    case boxStyle::yesNoCancel:
        return {yes, no, cancel};
    case boxStyle::yesNo:
        return {yes, no};
    default:
        return {ok};
    }
}

std::size_t defaultOf(std::uint32_t style, std::size_t count) {
    return (style & boxStyle::secondIsDefault) != 0 && count > 1 ? 1 : 0;
}

QMessageBox::Icon iconOf(std::uint32_t style) {
    switch (style & boxStyle::iconMask) {
    case boxStyle::iconStop:
        return QMessageBox::Critical;
    case boxStyle::iconQuestion:
        return QMessageBox::Question;
    case boxStyle::iconWarning:
        return QMessageBox::Warning;
    case boxStyle::iconInformation:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

// The style's own icons look dated.
void drawIcon(QMessageBox& box) {
    constexpr int side = 40;
    const char* name = nullptr;
    switch (box.icon()) {
    case QMessageBox::Critical:
        name = "stop";
        break;
    case QMessageBox::Question:
        name = "question";
        break;
    case QMessageBox::Warning:
        name = "warning";
        break;
    case QMessageBox::Information:
        name = "information";
        break;
    default:
        return;
    }
    if (auto* const picture = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label"))) {
        const QIcon icon = SvgIcon::make(QStringLiteral(":/icons/boxes/%1.svg").arg(QLatin1String(name)));
        picture->setPixmap(icon.pixmap(QSize(side, side), box.devicePixelRatioF()));
    }
}

// As plain text, which the box does only with its main text.
void showObject(QMessageBox& box, const wire::WideString& object) {
    if (object.empty()) {
        return;
    }
    box.setInformativeText(shownText(object));
    if (auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"))) {
        label->setTextFormat(Qt::PlainText);
    }
}

} // namespace

QWidget* frontWindow() {
    QWidget* const modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

Answer showMessageBox(QWidget* owner, const wire::WideString& text, const wire::WideString& caption,
                      std::uint32_t style, const wire::WideString& object) {
    QMessageBox box(owner != nullptr ? owner : frontWindow());
    box.setWindowModality(Qt::ApplicationModal); // whether or not the style asks for it: there is only one console
    const QString shown = shownText(text);
    box.setWindowTitle(shownLine(caption).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
    box.setTextFormat(Qt::PlainText);
    box.setText(shown);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.setIcon(iconOf(style));
    drawIcon(box);
    box.setAccessibleName(box.windowTitle());
    box.setAccessibleDescription(object.empty() ? shown : shown + QLatin1Char('\n') + shownLine(object));
    showObject(box, object);
    if (shown.endsWith(QChar(0x2026)) && text.back() != u'\u2026') {
        box.setDetailedText(exactText(text));
    }

    const auto choices = choicesOf(style);
    for (const Choice& choice : choices) {
        box.addButton(choice.button);
    }
    box.setDefaultButton(choices[defaultOf(style, choices.size())].button);
    box.setEscapeButton(choices.back().button);
    const int pressed = box.exec();
    for (const Choice& choice : choices) {
        if (pressed == choice.button) {
            return choice.answer;
        }
    }
    return choices.back().answer; // the program quits
}

} // namespace desktop
