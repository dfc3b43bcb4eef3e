#include "forms/AccessKeys.h"

#include "forms/FormWalk.h"
#include "wire/CaseFold.h"

#include <algorithm>
#include <utility>

namespace forms {
namespace {

constexpr std::size_t longestLabel = 400; // hosts cut longer ones, which nobody reads to the end
constexpr std::size_t nowhere = wire::WideString::npos;

// Letters of the alphabets that keyboards have.
bool isLetterOrDigit(char16_t unit) {
    const auto between = [unit](char16_t first, char16_t last) { return unit >= first && unit <= last; };
    const bool isLatin = between(u'a', u'z') || between(u'A', u'Z') ||
                         (between(0xC0, 0x24F) && unit != 0xD7 && unit != 0xF7) || between(0x1E00, 0x1EFF);
    const bool isGreek = (between(0x386, 0x3FF) && unit != 0x387 && unit != 0x3F6);
    const bool isCyrillic = between(0x400, 0x481) || between(0x48A, 0x52F);
    return between(u'0', u'9') || isLatin || isGreek || isCyrillic;
}

// The position, in the displayed text, of the key that a label asks for.
std::size_t wishedPosition(std::u16string_view label) {
    std::size_t wished = nowhere;
    std::size_t length = 0; // of the displayed text, from the first character that is not a blank
    for (std::size_t i = 0; i < label.size(); ++i) {
        if (label[i] == u'&' && i + 1 < label.size()) {
            ++i;
            wished = label[i] == u'&' ? wished : length;
        }
        length += length > 0 || label[i] != u' ' ? 1 : 0;
    }
    return wished;
}

// Letters that are hard to see underlined come last.
int rank(std::u16string_view text, std::size_t position, std::size_t wished) {
    if (position == wished) {
        return 0;
    }
    if (position == 0) {
        return 1;
    }
    if (!isLetterOrDigit(text[position - 1])) {
        return 2;
    }
    return std::u16string_view(u"gijlpqy").find(text[position]) != std::u16string_view::npos ? 4 : 3;
}

} // namespace

wire::WideString KeyedLabel::marked() const {
    wire::WideString result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i == key || text[i] == u'&') {
            result += u'&';
        }
        result += text[i];
    }
    return result;
}

char16_t AccessKeys::Entry::keyAt(std::size_t position) const {
    return wire::foldCase(text[position]);
}

std::size_t AccessKeys::add(std::u16string_view label, Claim claim) {
    entries_.push_back(entryOf(label));
    entries_.back().claim = claim;
    return entries_.size() - 1;
}

void AccessKeys::assign() {
    for (Entry& entry : entries_) {
        std::vector<const Entry*> tried;
        serve(entry, tried);
    }
}

void AccessKeys::change(std::size_t number, std::u16string_view label) {
    Entry& entry = entries_.at(number);
    Entry changed = entryOf(label);
    changed.claim = entry.claim;
    if (entry.chosen) {
        const char16_t key = entry.keyAt(*entry.chosen);
        const auto same = std::ranges::find_if(changed.positions,
                                               [&](std::size_t position) { return changed.keyAt(position) == key; });
        changed.chosen = same != changed.positions.end() ? std::optional(*same) : std::nullopt;
    }
    entry = std::move(changed);
    if (!entry.chosen) {
        takeFreeKey(entry);
    }
}

KeyedLabel AccessKeys::label(std::size_t number) const {
    const Entry& entry = entries_.at(number);
    return {.text = entry.text, .key = entry.chosen};
}

AccessKeys::Entry AccessKeys::entryOf(std::u16string_view label) {
    Entry entry;
    entry.text = readableLabel(label);
    const std::size_t wished = wishedPosition(label);
    for (std::size_t i = 0; i < std::min(entry.text.size(), longestLabel); ++i) {
        if (isLetterOrDigit(entry.text[i])) {
            entry.positions.push_back(i);
        }
    }
    std::ranges::stable_sort(entry.positions, {},
                             [&](std::size_t position) { return rank(entry.text, position, wished); });
    return entry;
}

AccessKeys::Entry* AccessKeys::ownerOf(char16_t key) {
    const auto found = std::ranges::find_if(
        entries_, [key](const Entry& entry) { return entry.chosen && entry.keyAt(*entry.chosen) == key; });
    return found != entries_.end() ? &*found : nullptr;
}

bool AccessKeys::takeFreeKey(Entry& entry) {
    const auto free = std::ranges::find_if(
        entry.positions, [&](std::size_t position) { return ownerOf(entry.keyAt(position)) == nullptr; });
    if (free == entry.positions.end()) {
        return false;
    }
    entry.chosen = *free;
    return true;
}

// One step of a bipartite matching: takes a free key, or one whose owner can use another instead.
bool AccessKeys::serve(Entry& entry, std::vector<const Entry*>& tried) {
    if (takeFreeKey(entry)) {
        return true;
    }
    tried.push_back(&entry);
    for (const std::size_t position : entry.positions) {
        Entry* const owner = ownerOf(entry.keyAt(position));
        const bool mayMove = owner->claim == Claim::givesWay && std::ranges::find(tried, owner) == tried.end();
        if (mayMove && serve(*owner, tried)) {
            entry.chosen = position;
            return true;
        }
    }
    return false;
}

} // namespace forms
