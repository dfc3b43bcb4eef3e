#include "shell/RowFilter.h"

#include "wire/WireDate.h"

#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace {

using ListTitles = std::vector<wire::WideString>;

const ListTitles printerTitles{u"Name", u"Model", u"Jobs In Queue", u"Last Seen", u"Location"};

// A row of a list; jobs and dates sort by numbers.
class ListedPrinter final : public shell::FilteredCells {
public:
    ListedPrinter(wire::WideString name, wire::WideString model, int jobs, const std::string& seen,
                  wire::WideString location, wire::WideString state)
        : texts_{std::move(name), std::move(model), wire::toWide(std::to_string(jobs)), wire::toWide(seen),
                 std::move(location)},
          jobs_(jobs),
          seen_(wire::wireDateOrder(seen)),
          state_(std::move(state)) {}

    [[nodiscard]] wire::WideStringView text(std::int32_t column) const override {
        return texts_.at(static_cast<std::size_t>(column));
    }
    [[nodiscard]] std::optional<std::int64_t> number(std::int32_t column) const override {
        return column == 2   ? std::optional<std::int64_t>(jobs_)
               : column == 3 ? std::optional<std::int64_t>(seen_)
                             : std::nullopt;
    }
    [[nodiscard]] wire::WideStringView state() const override { return state_; }

private:
    std::vector<wire::WideString> texts_;
    std::int64_t jobs_;
    std::int64_t seen_;
    wire::WideString state_;
};

const ListedPrinter hallPrinter{u"Hall 1",       u"Mirado LASER 12",      0, "2024-03-05 17:04:09",
                                u"Ground floor", u"Error: No Paper, Idle"};
const ListedPrinter officePrinter{u"Office-2", u"Inkwell 7", 9, "2024-03-06 08:00:00", u"", u"OK, Printing"};
const ListedPrinter labelPrinter{u"Label \"X\"", u"Quillmark laser", 10, "", u"Store 10", u""};

// The first letters of the rows that pass.
std::string rowsPassing(wire::WideStringView text) {
    const shell::RowFilter filter(text, printerTitles);
    std::string passed;
    for (const auto* const row : {&hallPrinter, &officePrinter, &labelPrinter}) {
        passed += filter.matches(*row) ? static_cast<char>(row->text(0).front()) : '-';
    }
    return passed;
}

struct FilterCase {
    const char16_t* filter;
    const char* passing;
};

void PrintTo(const FilterCase& one, std::ostream* out) {
    *out << wire::toUtf8(one.filter);
}

class RowFilterTable : public testing::TestWithParam<FilterCase> {};

TEST_P(RowFilterTable, letsTheseRowsPass) {
    EXPECT_EQ(rowsPassing(GetParam().filter), GetParam().passing);
}

INSTANTIATE_TEST_SUITE_P(Words, RowFilterTable,
                         testing::Values(FilterCase{u"", "HOL"}, FilterCase{u"   ", "HOL"}, FilterCase{u"laser", "H-L"},
                                         FilterCase{u"LaSeR", "H-L"}, FilterCase{u"laser store", "--L"},
                                         FilterCase{u"store laser", "--L"}, FilterCase{u"\"mirado laser\"", "H--"},
                                         FilterCase{u"\"laser mirado\"", "---"}, FilterCase{u"laser mirado", "H--"},
                                         FilterCase{u"\"\"", "HOL"}, FilterCase{u"office-2", "-O-"},
                                         FilterCase{u"nowhere", "---"}));

INSTANTIATE_TEST_SUITE_P(Negations, RowFilterTable,
                         testing::Values(FilterCase{u"-laser", "-O-"}, FilterCase{u"laser -mirado", "--L"},
                                         FilterCase{u"-\"mirado laser\"", "-OL"}, FilterCase{u"-", "HO-"},
                                         FilterCase{u"\"-2\"", "-O-"}, FilterCase{u"-model:laser", "-O-"},
                                         FilterCase{u"-jobs:>0", "H--"}, FilterCase{u"-loc:\"\"", "H-L"}));

INSTANTIATE_TEST_SUITE_P(Columns, RowFilterTable,
                         testing::Values(FilterCase{u"model:laser", "H-L"}, FilterCase{u"MOD:Laser", "H-L"},
                                         FilterCase{u"name:laser", "---"}, FilterCase{u"jobsin:1", "--L"},
                                         FilterCase{u"\"Jobs In\":1", "--L"}, FilterCase{u"\"last seen\":17", "H--"},
                                         FilterCase{u"model:\"laser 12\"", "H--"}, FilterCase{u"loc:\"\"", "-O-"},
                                         FilterCase{u"loc:=\"\"", "-O-"}, FilterCase{u"name:=\"hall 1\"", "H--"},
                                         FilterCase{u"name:=hall", "---"}, FilterCase{u"name:\"\"\"x\"", "--L"},
                                         FilterCase{u"model:laser jobs:>0", "--L"},
                                         FilterCase{u"lastseen:17:04", "H--"}));

INSTANTIATE_TEST_SUITE_P(Comparisons, RowFilterTable,
                         testing::Values(FilterCase{u"jobs:>9", "--L"}, FilterCase{u"jobs:>=9", "-OL"},
                                         FilterCase{u"jobs:<10", "HO-"}, FilterCase{u"jobs:<=0", "H--"},
                                         FilterCase{u"jobs:=10", "--L"}, FilterCase{u"jobs:=1", "---"},
                                         FilterCase{u"jobs:>-1", "HOL"}, FilterCase{u"name:>=label", "-OL"},
                                         FilterCase{u"loc:>\"store 9\"", "--L"}, FilterCase{u"loc:<z", "H-L"},
                                         FilterCase{u"loc:>=\"\"", "HOL"}));

// The state of a row is no column, and yet can be asked for.
INSTANTIATE_TEST_SUITE_P(States, RowFilterTable,
                         testing::Values(FilterCase{u"state:paper", "H--"}, FilterCase{u"state:\"no paper\"", "H--"},
                                         FilterCase{u"State:ok", "-O-"}, FilterCase{u"-state:error", "-OL"},
                                         FilterCase{u"state:\"\"", "--L"}, FilterCase{u"printing", "-O-"},
                                         FilterCase{u"state:>=ok", "-O-"}, FilterCase{u"state:=5", "---"}));

// A row without a date is neither before nor after one.
INSTANTIATE_TEST_SUITE_P(Dates, RowFilterTable,
                         testing::Values(FilterCase{u"last:=2024-03-05", "H--"}, FilterCase{u"last:>2024-03-05", "-O-"},
                                         FilterCase{u"last:>=2024-03-05", "HO-"},
                                         FilterCase{u"last:<2024-03-06", "H--"}, FilterCase{u"last:<=2024-03", "HO-"},
                                         FilterCase{u"last:<2024-03", "---"},
                                         FilterCase{u"last:>\"2024-03-05 17:04\"", "-O-"},
                                         FilterCase{u"last:>2024-03-05T17:03", "HO-"},
                                         FilterCase{u"last:=\"2024-03-05 17:04:09\"", "H--"}));

// What is not finished yet, or means no column, never hides all.
INSTANTIATE_TEST_SUITE_P(Unfinished, RowFilterTable,
                         testing::Values(FilterCase{u"model:", "HOL"}, FilterCase{u"jobs:>", "HOL"},
                                         FilterCase{u"jobs:>=", "HOL"}, FilterCase{u"-model:", "HOL"},
                                         FilterCase{u"\"", "HOL"}, FilterCase{u"loc:\"", "HOL"},
                                         FilterCase{u"\"mirado la", "H--"}, FilterCase{u"model:\"laser 1", "H--"},
                                         FilterCase{u"colour:red", "---"}, FilterCase{u"-colour:red", "HOL"},
                                         FilterCase{u"17:04", "H--"}, FilterCase{u":04", "H--"},
                                         FilterCase{u"laser colour:", "---"}));

TEST(RowFilter, emptyLetsEverythingPass) {
    const shell::RowFilter filter;

    EXPECT_TRUE(filter.empty());
    EXPECT_TRUE(filter.matches(hallPrinter));
}

TEST(RowFilter, ofBlanksAloneIsEmpty) {
    EXPECT_TRUE(shell::RowFilter(u" \t", printerTitles).empty());
}

} // namespace
