#pragma once

#include "wire/Text.h"

// The one way in which texts are compared without regard to case: the simple case folding of Unicode 14, the same on
// every platform and in every locale, because keys made by it are kept in databases.
//
// A unit folds to one unit, so that a text keeps its length. "ß" and "ẞ" are the same letter, and not "ss". All three
// sigmas are one. "I" folds to "i" for Turkish users too, and their "İ" and "ı" are not folded. Accents count. Letters
// outside of the basic plane, which take two units, keep their case.
namespace wire {

[[nodiscard]] char16_t foldCaseBeyondAscii(char16_t unit);

// One unit without its case.
[[nodiscard]] inline char16_t foldCase(char16_t unit) {
    if (unit < 0x80) { // nearly every unit
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
    }
    return foldCaseBeyondAscii(unit);
}

[[nodiscard]] WideString foldCase(WideStringView text);

// Compares texts for sorting, by their units and without regard to case. Returns a value below 0, 0, or above 0.
[[nodiscard]] int compareIgnoringCase(WideStringView left, WideStringView right);

} // namespace wire
