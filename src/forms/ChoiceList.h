#pragma once

#include "forms/DropList.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

namespace forms {

// A drop-down list whose rows stand for the values that a field of a record can have.
template <class Value>
class ChoiceList final : public DropList {
public:
    struct Choice {
        Value value;
        std::u16string_view label;
    };

    using DropList::DropList;
    // The first choice is selected.
    ChoiceList(Container& container, std::u16string_view label, std::initializer_list<Choice> choices)
        : DropList(container, label) {
        offer(choices);
        select(0);
    }

    // Adds a row for each pair of a value and its label. The selection stays.
    template <class Choices>
    void offer(const Choices& choices) {
        for (const auto& [value, label] : choices) {
            add(value, label);
        }
    }
    void add(Value value, std::u16string_view label) {
        const auto row = static_cast<std::ptrdiff_t>(addItem(wire::WideString(label)));
        values_.insert(values_.begin() + row, value);
    }

    // None without a selection.
    [[nodiscard]] std::optional<Value> value() const {
        return selection() ? std::optional<Value>(values_[*selection()]) : std::nullopt;
    }
    // False, and no change, when no row stands for the value.
    bool selectValue(const Value& value) {
        const auto found = std::ranges::find(values_, value);
        if (found == values_.end()) {
            return false;
        }
        select(static_cast<std::size_t>(found - values_.begin()));
        return true;
    }

private:
    // Each row has its value: none comes or goes alone.
    using DropList::addFirst;
    using DropList::addItem;
    using DropList::clear;

    std::vector<Value> values_; // of the rows
};

} // namespace forms
