#include "rules/PriceBox.h"

#include "rules/PriceText.h"

#include <utility>

namespace rules {

PriceBox::PriceBox(forms::Container& container, const platform::Locale& locale, std::u16string_view label)
    : box(container, label), locale_(locale) {
    box.onChange = [this] { mark(); };
}

void PriceBox::show(float price) {
    show(price, formatPrice(locale_, price));
}

void PriceBox::showAmount(float amount) {
    show(amount, formatAmount(locale_, amount));
}

void PriceBox::show(float price, wire::WideString text) {
    shownText_ = std::move(text);
    shownPrice_ = price;
    box.setText(shownText_);
    mark();
}

void PriceBox::forget() {
    shownText_.clear();
    mark();
}

void PriceBox::mark() {
    const bool leftAlone = !shownText_.empty() && box.text() == shownText_;
    box.setProblem(leftAlone ? wire::WideString() : priceProblem(locale_, box.text()));
}

float PriceBox::price() const {
    const bool leftAlone = !shownText_.empty() && box.text() == shownText_;
    return leftAlone ? shownPrice_ : parsePrice(locale_, box.text());
}

} // namespace rules
