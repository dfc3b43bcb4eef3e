#pragma once

#include "forms/EditBox.h"
#include "platform/Locale.h"

namespace rules {

// A box for a price in the user's way of writing. As long as its text is left alone it means the very number that it
// shows, whatever was rounded or grouped for showing; until that is forgotten.
class PriceBox {
public:
    PriceBox(forms::Container& container, const platform::Locale& locale, std::u16string_view label);

    void show(float price);
    // The same with two decimals.
    void showAmount(float amount);
    // The text stays, and from now on means what it says.
    void forget() { shownText_.clear(); }
    bool empty() const { return box.text().empty(); }
    float price() const;
    // The same, but that of before where the box is empty.
    float priceOr(float before) const { return empty() ? before : price(); }

    forms::EditBox box;

private:
    void show(float price, wire::WideString text);

    const platform::Locale& locale_;
    wire::WideString shownText_;
    float shownPrice_ = 0;
};

} // namespace rules
