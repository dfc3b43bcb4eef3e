#pragma once

#include "wire/Text.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace shell {

// How a term of a filter compares a cell.
enum class FilterTest : std::uint8_t { contains, equal, less, lessOrEqual, greater, greaterOrEqual, empty };

// Numbers from the first to the last, both included: a number, or all moments of a day or a month.
struct NumberRange {
    std::int64_t first = 0;
    std::int64_t last = 0;
};

// One condition of a filter.
struct FilterTerm {
    bool negated = false;
    std::optional<std::int32_t> column{}; // any column if not given; the test is then contains
    FilterTest test = FilterTest::contains;
    wire::WideString text{};              // in folded case for contains, otherwise the key of the natural order
    std::optional<NumberRange> numbers{}; // what the text means for a column that sorts by numbers
    std::size_t begin = 0;                // the place of the term in the text, in units
    std::size_t length = 0;
};

// A part of a filter that was probably meant differently; it is taken as plain text.
struct FilterProblem {
    enum class Kind : std::uint8_t { unknownColumn, openQuote };

    Kind kind = Kind::unknownColumn;
    wire::WideString name{}; // of the column
    std::size_t begin = 0;   // the place of the part in the text, in units
    std::size_t length = 0;
};

// A filter that was read: a row passes if it meets all terms.
struct FilterQuery {
    std::vector<FilterTerm> terms;
    std::vector<FilterProblem> problems;
};

// Reads a filter for a list with these columns. Never fails; docs/filter.md describes what people may write:
//
//     filter    = { blank | term }
//     term      = [ "-" ] ( column ":" [ test ] [ value ] | value )
//     test      = ">" | ">=" | "<" | "<=" | "="
//     column    = letters except blanks, colons and quotes, or quoted
//     value     = letters except blanks, or quoted
//     quoted    = '"' { any letter, with '""' for a quote } '"'
//
// A condition on a column that has no value yet, as while it is being typed, is left out.
[[nodiscard]] FilterQuery parseFilter(wire::WideStringView text, std::span<const wire::WideString> titles);

// The column that a name refers to: the one with that title, or else the first whose title begins with the name, or
// else the first with a later word that begins with it; without regard to case and blanks.
[[nodiscard]] std::optional<std::int32_t> columnCalled(wire::WideStringView name,
                                                       std::span<const wire::WideString> titles);

// What is wrong, as a sentence without a full stop.
[[nodiscard]] wire::WideString describe(const FilterProblem& problem);

} // namespace shell
