#pragma once

#include "wire/Text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace forms {

// A label as displayed, and which of its letters is its access key.
struct KeyedLabel {
    wire::WideString text;
    std::optional<std::size_t> key;

    // As toolkits take it: an ampersand before the key, other ampersands doubled.
    [[nodiscard]] wire::WideString marked() const;
};

// Assigns access keys to the labels of a dialog: each key once, expected letters first, and keys for as many labels as
// possible. Keys ignore case.
class AccessKeys {
public:
    enum class Claim : std::uint8_t { givesWay, keeps };

    // Adds a label, possibly with an ampersand before the key that it asks for. Returns its number.
    std::size_t add(std::u16string_view label, Claim claim = Claim::givesWay);
    // Called once, after all have been added. Earlier labels get their preferred key; those that give way do so where a
    // later one would get none.
    void assign();
    // Changes the text of one label: it keeps its key if possible, or takes a free one. The others keep theirs.
    void change(std::size_t number, std::u16string_view label);

    [[nodiscard]] KeyedLabel label(std::size_t number) const;

private:
    struct Entry {
        wire::WideString text;              // as displayed
        std::vector<std::size_t> positions; // of letters and digits, best first
        std::optional<std::size_t> chosen;
        Claim claim = Claim::givesWay;

        [[nodiscard]] char16_t keyAt(std::size_t position) const;
    };

    static Entry entryOf(std::u16string_view label);
    Entry* ownerOf(char16_t key);
    bool takeFreeKey(Entry& entry);
    bool serve(Entry& entry, std::vector<const Entry*>& tried);

    std::vector<Entry> entries_;
};

} // namespace forms
