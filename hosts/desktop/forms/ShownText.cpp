#include "hosts/desktop/forms/ShownText.h"

#include "shell/VisibleText.h"

namespace desktop {
namespace {

constexpr qsizetype longestLine = 400;
constexpr qsizetype longestText = 2'000;
constexpr int longestRun = 60;
constexpr QChar ellipsis(0x2026);
constexpr QChar mayBreakHere(0x200B);

bool turnsDirection(QChar unit) {
    const char16_t code = unit.unicode();
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

QString cut(wire::WideStringView text, qsizetype longest) {
    const QStringView whole(text.data(), static_cast<qsizetype>(text.size()));
    if (whole.size() <= longest) {
        return whole.toString();
    }
    const bool splitsPair = whole[longest - 1].isHighSurrogate();
    return whole.left(longest - (splitsPair ? 1 : 0)).toString() + ellipsis;
}

} // namespace

QString exactText(wire::WideStringView text) {
    return QStringView(text.data(), static_cast<qsizetype>(text.size())).toString();
}

wire::WideString exactText(const QString& text) {
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

QString shownLine(wire::WideStringView text) {
    return exactText(shell::visibleText(exactText(cut(text, longestLine))));
}

QString shownText(wire::WideStringView text) {
    QString shown;
    int run = 0;
    for (const QChar unit : cut(text, longestText)) {
        const bool isBreak = unit == QLatin1Char('\n');
        if ((unit.category() == QChar::Other_Control && !isBreak) || turnsDirection(unit)) {
            if (unit == QLatin1Char('\t')) {
                shown += QLatin1Char(' ');
                run = 0;
            }
            continue;
        }
        run = unit.isSpace() ? 0 : run + 1;
        if (run > longestRun && !unit.isLowSurrogate() && !unit.isMark()) {
            shown += mayBreakHere;
            run = 1;
        }
        shown += unit;
    }
    return shown;
}

QString withoutAccessKey(QString text) {
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QString markedLine(const forms::KeyedLabel& label) {
    const forms::KeyedLabel shown{.text = exactText(shownLine(label.text)), .key = label.key};
    return exactText(shown.marked());
}

} // namespace desktop
