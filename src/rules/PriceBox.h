#pragma once

#include "forms/EditBox.h"
#include "platform/Locale.h"

namespace rules {

// A box for a price in the user's number format. While its text is unchanged it stands for the exact number, before
// rounding and grouping; until forget() is called. A text that is not a number is marked as such.
class PriceBox {
public:
    PriceBox(forms::Container& container, const platform::Locale& locale, std::u16string_view label);

    void show(float price);
    // The same with two decimals.
    void showAmount(float amount);
    // Keeps the text, which from now on is read as a number.
    void forget();
    [[nodiscard]] bool empty() const { return box.text().empty(); }
    [[nodiscard]] float price() const;
    // The same, but `before` if the box is empty.
    [[nodiscard]] float priceOr(float before) const { return empty() ? before : price(); }

    forms::EditBox box;

private:
    void mark();
    void show(float price, wire::WideString text);

    const platform::Locale& locale_;
    wire::WideString shownText_;
    float shownPrice_ = 0;
};

} // namespace rules
