#include "shell/ListClip.h"

#include <algorithm>

namespace shell {
namespace {

bool isControl(char16_t unit) {
    return unit < 0x20 || unit == 0x7F;
}

void addPlain(wire::WideString& text, wire::WideStringView cell) {
    const auto begin = static_cast<std::ptrdiff_t>(text.size());
    text += cell;
    std::replace_if(text.begin() + begin, text.end(), isControl, u' ');
}

void addUnit(wire::WideString& html, char16_t unit) {
    switch (unit) {
    case u'&':
        html += u"&amp;";
        break;
    case u'<':
        html += u"&lt;";
        break;
    case u'>':
        html += u"&gt;";
        break;
    case u'"':
        html += u"&quot;";
        break;
    case u'\n':
        html += u"<br>";
        break;
    default:
        html += isControl(unit) ? u' ' : unit;
    }
}

void addEscaped(wire::WideString& html, wire::WideStringView cell) {
    const auto isPlain = [](char16_t unit) {
        return !isControl(unit) && unit != u'&' && unit != u'<' && unit != u'>' && unit != u'"';
    };
    if (std::ranges::all_of(cell, isPlain)) {
        html += cell; // nearly always
        return;
    }
    for (std::size_t place = 0; place < cell.size(); ++place) {
        const bool endsInLineFeed = cell[place] == u'\r' && place + 1 < cell.size() && cell[place + 1] == u'\n';
        if (!endsInLineFeed) {
            addUnit(html, cell[place]);
        }
    }
}

} // namespace

ListClip clipOf(const Table& table) {
    ListClip clip;
    clip.html = u"<table><tr>";
    for (const auto& title : table.columns) {
        clip.html += u"<th>";
        addEscaped(clip.html, title);
        clip.html += u"</th>";
    }
    clip.html += u"</tr>\n";
    for (std::size_t row = 0; row < table.rowCount; ++row) {
        clip.html += u"<tr>";
        for (std::size_t column = 0; column < table.columns.size(); ++column) {
            const auto cell = table.cell(row, column);
            if (column != 0) {
                clip.text += u'\t';
            }
            addPlain(clip.text, cell);
            clip.html += u"<td>";
            addEscaped(clip.html, cell);
            clip.html += u"</td>";
        }
        clip.text += u'\n';
        clip.html += u"</tr>\n";
    }
    clip.html += u"</table>";
    return clip;
}

} // namespace shell
