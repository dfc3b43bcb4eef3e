#include "forms/TextControl.h"

#include <algorithm>
#include <utility>

namespace forms {
namespace {

bool onlyDigits(std::u16string_view text) {
    return std::ranges::all_of(text, [](char16_t unit) { return unit >= u'0' && unit <= u'9'; });
}

} // namespace

TextControl::TextControl(Container& container, std::u16string_view label, TextOptions options)
    : Control(container, label), options_(options) {}

void TextControl::setText(wire::WideString text) {
    if (text_ != text) {
        text_ = std::move(text);
        changed(Aspect::text);
    }
}

void TextControl::setLimit(std::size_t limit) {
    options_.limit = limit;
    changed(Aspect::limits);
}

void TextControl::setReadOnly(bool readOnly) {
    options_.readOnly = readOnly;
    changed(Aspect::limits);
}

void TextControl::setProblem(wire::WideString problem) {
    if (problem_ != problem) {
        problem_ = std::move(problem);
        changed(Aspect::problem);
    }
}

bool TextControl::userTyped(wire::WideString text) {
    if (!takesInput() || options_.readOnly) {
        return false;
    }
    const bool breaksRules = text.size() > options_.limit || (options_.digitsOnly && !onlyDigits(text));
    const bool shortens = text.size() < text_.size();
    if (breaksRules && !shortens) {
        return false;
    }
    text_ = std::move(text);
    run(onChange);
    return true;
}

} // namespace forms
