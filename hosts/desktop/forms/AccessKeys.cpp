#include "hosts/desktop/forms/AccessKeys.h"

#include "hosts/desktop/forms/ShownText.h"

#include <algorithm>

namespace desktop {
namespace {

constexpr qsizetype longestLabel = 400;

// Letters that are hard to see underlined come last.
int rank(const QString& text, qsizetype position, qsizetype wished) {
    if (position == wished) {
        return 0;
    }
    const QChar unit = text[position];
    if (position == 0) {
        return 1;
    }
    if (!text[position - 1].isLetterOrNumber()) {
        return 2;
    }
    return QStringLiteral("gijlpqy").contains(unit) ? 4 : 3;
}

} // namespace

void AccessKeys::add(const QString& label, Claim claim) {
    Label entry;
    entry.claim = claim;
    qsizetype wished = -1;
    for (qsizetype i = 0; i < label.size(); ++i) {
        if (label[i] == QLatin1Char('&') && i + 1 < label.size()) {
            ++i;
            wished = label[i] == QLatin1Char('&') ? wished : entry.text.size();
        }
        entry.text += label[i];
    }
    const auto isBlank = [](QChar unit) { return unit == QLatin1Char(' '); };
    const auto begin = std::find_if_not(entry.text.begin(), entry.text.end(), isBlank) - entry.text.begin();
    wished -= begin;
    entry.text = shownLine(exactText(entry.text)).trimmed();

    const qsizetype end = std::min(entry.text.size(), longestLabel);
    for (qsizetype i = 0; i < end; ++i) {
        if (entry.text[i].isLetterOrNumber() && !entry.text[i].isSurrogate()) {
            entry.positions.push_back(i);
        }
    }
    std::ranges::stable_sort(entry.positions, {},
                             [&](qsizetype position) { return rank(entry.text, position, wished); });
    labels_.push_back(std::move(entry));
}

// One step of a bipartite matching: takes a free key, or one whose owner can do with another.
bool AccessKeys::serve(std::size_t index, std::vector<bool>& tried) {
    Label& label = labels_[index];
    const auto ownerOf = [&](QChar key) {
        return std::ranges::find_if(
            labels_, [&](const Label& other) { return other.chosen >= 0 && keyAt(other, other.chosen) == key; });
    };
    for (const qsizetype position : label.positions) {
        if (ownerOf(keyAt(label, position)) == labels_.end()) {
            label.chosen = position;
            return true;
        }
    }
    tried[index] = true;
    for (const qsizetype position : label.positions) {
        const auto owner = ownerOf(keyAt(label, position));
        const auto ownerIndex = static_cast<std::size_t>(owner - labels_.begin());
        if (owner->claim == Claim::givesWay && !tried[ownerIndex] && serve(ownerIndex, tried)) {
            label.chosen = position;
            return true;
        }
    }
    return false;
}

std::vector<QString> AccessKeys::assign() {
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        std::vector<bool> tried(labels_.size());
        serve(i, tried);
    }
    std::vector<QString> texts;
    for (const Label& label : labels_) {
        if (label.chosen < 0) {
            texts.push_back(withoutAccessKey(label.text));
        } else {
            texts.push_back(withoutAccessKey(label.text.left(label.chosen)) + QLatin1Char('&') +
                            withoutAccessKey(label.text.mid(label.chosen)));
        }
    }
    return texts;
}

} // namespace desktop
