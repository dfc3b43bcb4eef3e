#include "hosts/desktop/look/Text.h"

#include "shell/VisibleText.h"

namespace desktop {
namespace {

constexpr std::size_t longestLine = 400;
constexpr qsizetype longestToolTip = 2'000;

bool isHighSurrogate(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

} // namespace

QString toQString(wire::WideStringView text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

QString toQString(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

wire::WideString toWideString(const QString& text) {
    return text.toStdU16String();
}

QString oneLine(wire::WideStringView text) {
    if (text.size() <= longestLine) {
        return toQString(shell::visibleText(text));
    }
    const auto cut = longestLine - (isHighSurrogate(text[longestLine - 1]) ? 1 : 0);
    return toQString(shell::visibleText(text.substr(0, cut))) + QChar(0x2026);
}

QString plainToolTip(const QString& text) {
    const QString shown = text.size() > longestToolTip ? text.left(longestToolTip) + QChar(0x2026) : text;
    return QStringLiteral("<p style=\"white-space:pre-wrap\">") + shown.toHtmlEscaped() + QStringLiteral("</p>");
}

} // namespace desktop
