#pragma once

#include "wire/Text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace forms {

// A label as a person reads it, and which of its letters is its access key.
struct KeyedLabel {
    wire::WideString text;
    std::optional<std::size_t> key;

    // As toolkits take it: an ampersand before the key, other ampersands doubled.
    wire::WideString marked() const;
};

// Gives the labels of a dialog their access keys: each key once, letters that people expect first, and as many labels
// served as can be. Keys do not depend on case.
class AccessKeys {
public:
    enum class Claim : std::uint8_t { givesWay, keeps };

    // A label as it stands, perhaps with an ampersand before the key that it wishes for. Answers its number.
    std::size_t add(std::u16string_view label, Claim claim = Claim::givesWay);
    // Once, after all have been added. Earlier ones keep what they like best; those that give way do so where a later
    // one would get nothing.
    void assign();
    // Another text for one of them: it keeps its key where it can, or takes one that is free. The others keep theirs.
    void change(std::size_t number, std::u16string_view label);

    KeyedLabel label(std::size_t number) const;

private:
    struct Entry {
        wire::WideString text;              // as a person reads it
        std::vector<std::size_t> positions; // of letters and digits, best first
        std::optional<std::size_t> chosen;
        Claim claim = Claim::givesWay;

        char16_t keyAt(std::size_t position) const;
    };

    static Entry entryOf(std::u16string_view label);
    Entry* ownerOf(char16_t key);
    bool takeFreeKey(Entry& entry);
    bool serve(Entry& entry, std::vector<const Entry*>& tried);

    std::vector<Entry> entries_;
};

} // namespace forms
